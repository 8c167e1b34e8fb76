#include "settings/RecordListPane.h"

#include "foundation/LocalizedString.h"
#include "settings/RecordListView.h"
#include "viewkit/FormParts.h"
#include "viewkit/Sheet.h"
#include "viewkit/SymbolIcon.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// More room between a button's symbol and its text than the style leaves, in points.
constexpr int iconTextSpacing = 3;

} // namespace

RecordListPane::RecordListPane(const QString& title, RecordSource source)
    : source_(std::move(source)), list_(new RecordListView(model_)), bar_(new QHBoxLayout) {
    constexpr int padding = Theme::defaultPadding;
    list_->setAccessibleName(title);
    list_->setReorderable(bool(source_.move));
    connect(list_, &RecordListView::editRequested, this, &RecordListPane::openEditor);
    connect(list_, &RecordListView::deleteRequested, this, &RecordListPane::remove);
    connect(list_, &RecordListView::deleteSelectedRequested, this, &RecordListPane::deleteSelected);
    connect(list_, &RecordListView::moveRequested, this, [this](int from, int to) {
        source_.move(from, to);
        reload();
    });
    connect(
        list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this](const QItemSelection& selected) {
            // What the model's changes do to the selection says nothing about the user's choice.
            if (isReloading_)
                return;
            const QModelIndexList rows = selected.indexes();
            setSelection(rows.isEmpty() ? std::nullopt : std::optional(model_.id(rows.first())));
        });

    auto* header = new QHBoxLayout;
    header->setContentsMargins(padding, padding, padding, padding);
    header->addWidget(headline(title));
    header->addStretch();
    auto* listRow = new QHBoxLayout;
    listRow->setContentsMargins(padding, 0, padding, 0);
    listRow->addWidget(list_);
    bar_->setContentsMargins(padding, padding, padding, padding);
    bar_->setSpacing(Theme::defaultSpacing);
    bar_->addStretch();
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addLayout(header);
    stack->addLayout(listRow, 1);
    stack->addLayout(bar_);
    setFocusProxy(list_);

    QPushButton* add = addButton(u"plus"_s, localizedString("add"));
    connect(add, &QPushButton::clicked, this, [this] { openEditor(-1); });
    auto* addKey = new QShortcut(QKeySequence::New, this);
    addKey->setAutoRepeat(false);
    connect(addKey, &QShortcut::activated, this, [this] { openEditor(-1); });
    edit_ = addButton(u"pencil"_s, localizedString("edit"));
    connect(edit_, &QPushButton::clicked, this, &RecordListPane::editSelected);
    delete_ = addButton(u"trash"_s, localizedString("delete"));
    connect(delete_, &QPushButton::clicked, this, &RecordListPane::deleteSelected);
    setSelection({});
    reload();
}

QPushButton*
RecordListPane::addButton(const QString& symbol, const QString& title, int leadingPadding) {
    const int side = Symbols::sideLength(WindowTheme::fontSize);
    auto* button = new QPushButton(symbolIcon(symbol), title);
    button->setIconSize(QSize(side + iconTextSpacing, side));
    const int stretch = bar_->count() - 1;
    if (leadingPadding > 0)
        bar_->insertSpacing(stretch, leadingPadding);
    bar_->insertWidget(bar_->count() - 1, button);
    return button;
}

void RecordListPane::keyPressEvent(QKeyEvent* event) {
    // Outside a dialog Qt's buttons hear Space only.
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (button && isReturn)
        button->click();
    else
        QWidget::keyPressEvent(event);
}

void RecordListPane::scheduleReload() {
    // Stores say so before they change, and a move is two changes: read once, afterwards.
    if (!std::exchange(isReloadScheduled_, true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (isReloadScheduled_)
                    reload();
            },
            Qt::QueuedConnection);
}

void RecordListPane::reload() {
    isReloadScheduled_ = false;
    isReloading_ = true;
    model_.setSnapshot(source_.snapshot());
    QItemSelectionModel& rows = *list_->selectionModel();
    const QModelIndex selected = selection_ ? model_.indexOf(*selection_) : QModelIndex();
    if (selected.isValid() && !rows.isSelected(selected)) {
        rows.setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
        list_->scrollTo(selected);
    } else if (!selected.isValid()) {
        rows.clearSelection();
    }
    isReloading_ = false;
}

bool RecordListPane::knows(const QUuid& record) const {
    return model_.indexOf(record).isValid() || source_.snapshot().ids.contains(record);
}

void RecordListPane::reveal(const QUuid& record) {
    const bool isThere = source_.snapshot().ids.contains(record);
    if (isThere || selection_ == record)
        setSelection(isThere ? std::optional(record) : std::nullopt);
    reload();
    list_->setFocus();
    if (isThere)
        list_->scrollTo(model_.indexOf(record));
}

void RecordListPane::setSelection(std::optional<QUuid> selection) {
    selection_ = selection;
    // A button that is switched off hands the focus on; the list is where the user was.
    if (!selection_ && (edit_->hasFocus() || delete_->hasFocus()))
        list_->setFocus();
    edit_->setEnabled(selection_.has_value());
    delete_->setEnabled(selection_.has_value());
    if (!selection_)
        list_->clearSelection();
}

void RecordListPane::editSelected() {
    const qsizetype index = selection_ ? source_.snapshot().ids.indexOf(*selection_) : -1;
    if (index >= 0)
        openEditor(index);
}

void RecordListPane::deleteSelected() {
    const qsizetype index = selection_ ? source_.snapshot().ids.indexOf(*selection_) : -1;
    if (index >= 0)
        remove(index);
}

void RecordListPane::remove(qsizetype index) {
    source_.remove(index);
    setSelection({});
    reload();
}

void RecordListPane::openEditor(qsizetype index) {
    if (editor_)
        return;
    const bool isNew = index < 0;
    const auto done = [this, isNew](std::optional<QUuid> saved) {
        if (editor_)
            editor_->accept();
        if (saved && isNew)
            reveal(*saved);
    };
    editor_ = &Sheet::present(*this, source_.makeEditor(index, done));
}

} // namespace velmora
