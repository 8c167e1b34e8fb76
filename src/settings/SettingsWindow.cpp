#include "settings/SettingsWindow.h"

#include "foundation/Bundle.h"
#include "foundation/LocalizedString.h"
#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "input/HotKeyManager.h"
#include "input/MouseButtonManager.h"
#include "model/EditHistory.h"
#include "model/ShortcutManager.h"
#include "overlay/ScreenManager.h"
#include "platform/Session.h"
#include "platform/WindowActivation.h"
#include "settings/AboutView.h"
#include "settings/Exchange.h"
#include "settings/MainMenuBar.h"
#include "settings/StorageNotice.h"
#include "settings/WindowFrame.h"
#include "viewkit/HeldKeys.h"
#include "viewkit/Sheet.h"
#include "viewkit/WindowTheme.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <QtMath>
#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

/// Under the autosave name "SettingsWindow".
const QString frameKey = u"NSWindow Frame SettingsWindow"_s;
/// A window that is being dragged is saved when it comes to rest.
constexpr auto saveDelay = 300ms;

/// The rooms for windows on the screens, the primary one first: what the desktop's panels leave,
/// and below the bar.
QList<QRect> availableAreas(int barHeight) {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        QRect area = screen->availableGeometry();
        if (screen == QGuiApplication::primaryScreen())
            area.setTop(qMax(area.top(), screen->geometry().top() + barHeight));
        if (!area.isEmpty()) // while no output is connected
            areas.append(area);
    }
    return areas;
}

} // namespace

/// Titled, closable and resizable (style mask 11), without a minimise button.
class SettingsWindow::Window : public QWidget {
public:
    explicit Window(SettingsWindow& owner)
        : QWidget(
              nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                           Qt::WindowMaximizeButtonHint),
          owner_(owner) {}

protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        owner_.windowWillClose();
    }
    void moveEvent(QMoveEvent*) override { frameChanged(); }
    void resizeEvent(QResizeEvent*) override { frameChanged(); }

private:
    void frameChanged() {
        if (isVisible())
            owner_.saveTimer_.start();
    }

    SettingsWindow& owner_;
};

SettingsWindow& SettingsWindow::shared() {
    static auto* instance =
        new SettingsWindow(UserDefaults::standard(), Session::current().windowActivation(), [] {
            return SettingsServices{
                .shortcutManager = ShortcutManager::shared(),
                .mouseManager = MouseButtonManager::shared(),
                .history = EditHistory::shared(),
                .exchange = Exchange::shared(),
                .preferences = Preferences::shared(),
                .hotKeyManager = HotKeyManager::shared(),
                .inputGrants = Session::current().inputGrants(),
                .loginItem = LoginItem::ofThisProgram(),
                .infoDictionary = Bundle::infoDictionary(),
                .barHeight = qCeil(ScreenManager::shared().getMenuBarHeight())};
        });
    return *instance;
}

SettingsWindow::SettingsWindow(
    UserDefaults& defaults, WindowActivation& activation,
    std::function<SettingsServices()> services)
    : defaults_(defaults), activation_(activation), services_(std::move(services)) {
    saveTimer_.setSingleShot(true);
    saveTimer_.setInterval(saveDelay);
    connect(&saveTimer_, &QTimer::timeout, this, &SettingsWindow::saveFrame);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (saveTimer_.isActive())
            saveFrame();
    });
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::show() {
    if (!window_)
        makeWindow();
    activation_.makeKeyAndOrderFront(*window_);
    // An open sheet holds the window's input; a sheet may have one of its own.
    for (QDialog* sheet : window_->findChildren<QDialog*>()) {
        if (sheet->isVisible())
            activation_.makeKeyAndOrderFront(*sheet);
    }
}

void SettingsWindow::makeWindow() {
    window_ = std::make_unique<Window>(*this);
    window_->setWindowTitle(u"Velmora 設定"_s);
    WindowTheme::follow(*window_);
    new HeldKeys(window_.get());
    const SettingsServices services = services_();
    auto* menuBar = new MainMenuBar(mainMenu_, services.history);
    window_->addActions(menuBar->commands());
    auto* close = new QShortcut(QKeySequence(u"Ctrl+W"_s), window_.get());
    close->setAutoRepeat(false);
    connect(close, &QShortcut::activated, window_.get(), &QWidget::close);
    auto* view = new SettingsView(services);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menuBar);
    layout->addWidget(view);
    layout->addWidget(new StorageNotice(defaults_, localizedString("settings_not_stored_format")));
    restoreFrame(*view, services.barHeight);
    view->currentWidget()->setFocus();
}

void SettingsWindow::restoreFrame(SettingsView& view, int barHeight) {
    window_->layout()->menuBar()->ensurePolished();
    const auto data = defaults_.data(frameKey);
    const auto saved = data ? WindowFrame::decoded(*data) : std::nullopt;
    WindowFrame frame = saved.value_or(WindowFrame{{}, window_->sizeHint()});
    if (const auto areas = availableAreas(barHeight); !areas.isEmpty()) {
        const QRect area = saved ? frame.homeArea(areas) : areas.first();
        if (!saved)
            frame.place = area.center() - frame.outer().center();
        // A screen too small for the least size gets what there is room for.
        const QSize menuBar = window_->minimumSizeHint() - view.minimumSize();
        const QSize room = area.size() - frame.decoration - menuBar;
        view.setMinimumSize(
            SettingsView::contentSize.boundedTo(room).expandedTo(view.minimumSizeHint()));
        frame = frame.fitted(area, window_->minimumSizeHint());
    }
    window_->resize(frame.content);
    window_->move(frame.place);
}

void SettingsWindow::saveFrame() {
    saveTimer_.stop();
    if (!window_ || window_->isMaximized() || window_->isFullScreen())
        return;
    const QRect outer = window_->frameGeometry();
    const WindowFrame frame{
        .place = outer.topLeft(),
        .content = window_->size(),
        .decoration = outer.size() - window_->size()};
    defaults_.setData(frameKey, frame.encoded());
}

void SettingsWindow::close() {
    if (window_)
        window_->close();
}

void SettingsWindow::windowWillClose() {
    if (!window_)
        return;
    saveFrame();
    // The event that brought us here belongs to the window: it goes in the next turn.
    QWidget* closed = window_.release();
    connect(closed, &QObject::destroyed, qApp, [] {
        Log::writeDiagnostic(u"🗑️ SettingsWindow released"_s);
        QPixmapCache::clear();
        // The program goes on for weeks; what the window took is given back, once all is freed.
        QMetaObject::invokeMethod(
            qApp, [] { malloc_trim(0); }, Qt::QueuedConnection);
    });
    closed->hide();
    closed->deleteLater();
}

void SettingsWindow::showAboutPanel() {
    show();
    if (window_->findChild<AboutView*>())
        return;
    Sheet::present(*window_, std::make_unique<AboutView>(services_().infoDictionary));
}

} // namespace velmora
