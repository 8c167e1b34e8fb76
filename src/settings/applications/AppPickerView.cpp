#include "settings/applications/AppPickerView.h"

#include "foundation/LocalizedString.h"
#include "foundation/MainQueue.h"
#include "settings/applications/AppListView.h"
#include "settings/applications/SearchField.h"
#include "viewkit/FormParts.h"
#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QThreadPool>
#include <QVBoxLayout>
#include <memory>

namespace velmora {
namespace {

constexpr QSize contentSize(500, 500);
constexpr int dividerPadding = 8;

/// Whether `event` types a character.
bool isTyping(const QKeyEvent& event) {
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(event.modifiers() & commands) && !event.text().isEmpty() &&
           event.text().front().isPrint() && !event.text().front().isSpace();
}

} // namespace

AppPickerView::AppPickerView(
    const QString& selectedBundleId, std::function<void(const AppInfo&)> onPick, AppScanner scanner)
    : onPick_(std::move(onPick)), scanner_(std::move(scanner)), model_(selectedBundleId) {
    const QString title = localizedString("picker_app_title");
    setWindowTitle(title);
    setFixedSize(contentSize);

    searchField_ = new SearchField(localizedString("picker_app_search"));
    searchField_->edit().installEventFilter(this);
    setFocusProxy(searchField_);
    connect(&searchField_->edit(), &QLineEdit::textChanged, this, &AppPickerView::setSearchText);
    list_ = new AppListView(model_);
    list_->setAccessibleName(title);
    list_->installEventFilter(this);
    connect(list_, &AppListView::rowPicked, this, &AppPickerView::pick);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(sheetHeader(title, localizedString("button_close"), *this));
    auto* searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(Theme::defaultPadding, 0, Theme::defaultPadding, 0);
    searchRow->addWidget(searchField_);
    stack->addLayout(searchRow);
    stack->addSpacing(dividerPadding);
    stack->addWidget(divider());
    stack->addWidget(list_, 1);
    // The end of the program waits for the thread.
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { scan_.request_stop(); });
}

AppPickerView::~AppPickerView() {
    scan_.request_stop();
}

void AppPickerView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous())
        loadApps();
}

void AppPickerView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    scan_.request_stop();
    model_.clear();
}

void AppPickerView::loadApps() {
    scan_ = std::stop_source();
    QThreadPool::globalInstance()->start(
        [self = QPointer(this), scanner = scanner_, stop = scan_.get_token()] {
            auto apps = std::make_shared<SearchableApps>(scanner.getInstalledApps(stop));
            MainQueue::submit([self, apps, stop] {
                if (!self || stop.stop_requested())
                    return;
                self->model_.setApps(std::move(*apps));
                self->goToFirstFound();
            });
        });
}

void AppPickerView::setSearchText(const QString& text) {
    model_.setSearchText(text);
    list_->scrollToTop();
    goToFirstFound();
}

void AppPickerView::goToFirstFound() {
    if (!searchField_->edit().text().isEmpty())
        list_->setCurrentIndex(model_.index(0));
}

void AppPickerView::pick(const QModelIndex& index) {
    if (!index.isValid())
        return;
    if (const AppInfo* app = model_.app(index)) {
        onPick_(*app);
        Sheet::dismiss(*this);
        return;
    }
    const int row = index.row();
    model_.showAllApps();
    list_->setCurrentIndex(model_.index(row));
}

bool AppPickerView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto& keyEvent = static_cast<QKeyEvent&>(*event);
    const int key = keyEvent.key();
    const bool inList = watched == list_;
    if (key == Qt::Key_Return || key == Qt::Key_Enter || (inList && key == Qt::Key_Space)) {
        pick(list_->currentIndex());
        return true;
    }
    if (keyEvent.modifiers() == Qt::NoModifier || keyEvent.modifiers() == Qt::KeypadModifier) {
        if (list_->moveCurrent(key))
            return true;
    }
    if (inList && isTyping(keyEvent)) {
        QLineEdit& edit = searchField_->edit();
        edit.setFocus();
        edit.setText(edit.text() + keyEvent.text());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace velmora
