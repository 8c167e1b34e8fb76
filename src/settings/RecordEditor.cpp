#include "settings/RecordEditor.h"

#include "foundation/LocalizedString.h"
#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "settings/ActionForm.h"
#include "settings/FormGroup.h"
#include "viewkit/Alert.h"
#include "viewkit/FormParts.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace velmora {
namespace {

constexpr int childSpacing = 20;
constexpr int groupSpacing = 16;

} // namespace

RecordEditor::RecordEditor(Kind kind, std::function<void()> onCancel, InputGrants& inputGrants)
    : kind_(std::move(kind)),
      onCancel_(std::move(onCancel)),
      actionForm_(new ActionForm(
          kind_.actionHeading, kind_.action ? ActionFields(*kind_.action) : ActionFields(),
          inputGrants)),
      scrollArea_(scrollArea(makeForm(), kind_.heading)),
      save_(new QPushButton(localizedString("button_save"))) {
    constexpr int padding = Theme::defaultPadding;
    setWindowTitle(kind_.heading);
    QLabel* heading = headline(kind_.heading);
    heading->setAlignment(Qt::AlignCenter);
    QWidget* form = scrollArea_->widget();
    form->installEventFilter(this);
    // The scroll bar takes its room from the margin: the form's lines stay where they are.
    connect(
        scrollArea_->verticalScrollBar(), &QScrollBar::rangeChanged, form,
        [this, form](int, int maximum) {
            const int bar = maximum > 0 ? scrollArea_->verticalScrollBar()->sizeHint().width() : 0;
            form->layout()->setContentsMargins(padding, 0, padding - bar, 0);
        });

    auto* cancel = new QPushButton(localizedString("button_cancel"));
    connect(cancel, &QPushButton::clicked, this, onCancel_);
    // Else losing the focus would make it an ordinary button.
    save_->setAutoDefault(false);
    save_->setDefault(true);
    connect(save_, &QPushButton::clicked, this, &RecordEditor::requestSave);
    // The command's field keeps Return to itself.
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* saveKey = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        saveKey->setAutoRepeat(false);
        connect(saveKey, &QShortcut::activated, this, &RecordEditor::requestSave);
    }
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(padding, padding, padding, padding);
    buttons->addWidget(cancel);
    buttons->addStretch();
    buttons->addWidget(save_);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, padding, 0, 0);
    stack->setSpacing(childSpacing);
    stack->addWidget(heading);
    stack->addWidget(scrollArea_, 1);
    stack->addLayout(buttons);

    KeyCaptureView& recorder = actionForm_->keyCapture();
    if (kind_.recordsReturn)
        focusNotifier_ = actionForm_->isKeyCaptureFocused()->addNotifier(
            [this] { save_->setDefault(!*actionForm_->isKeyCaptureFocused()); });
    else
        recorder.view().onDefaultKey = [this] { requestSave(); };
    setFocusProxy(
        actionForm_->fields().type == ActionType::pressKey ? &recorder : kind_.firstControl);
    const int needed =
        form->minimumSizeHint().width() + scrollArea_->verticalScrollBar()->sizeHint().width();
    setFixedWidth(qMax(kind_.size.width(), needed));
    fitHeight();
    updateSaveButton();
}

QWidget* RecordEditor::makeForm() {
    constexpr int padding = Theme::defaultPadding;
    auto* form = new QWidget;
    auto* groups = new QVBoxLayout(form);
    groups->setContentsMargins(padding, 0, padding, 0);
    groups->setSpacing(groupSpacing);
    groups->addWidget(kind_.group);
    groups->addWidget(actionForm_);
    groups->addStretch();
    connect(kind_.group, &FormGroup::changed, this, &RecordEditor::updateSaveButton);
    connect(actionForm_, &ActionForm::fieldsChanged, this, &RecordEditor::updateSaveButton);
    connect(
        actionForm_, &ActionForm::typeChanged, this, &RecordEditor::scrollToAction,
        Qt::QueuedConnection);
    return form;
}

void RecordEditor::scrollToAction() {
    scrollArea_->widget()->layout()->activate();
    scrollArea_->ensureWidgetVisible(actionForm_, 0, 0);
}

void RecordEditor::fitHeight() {
    const int form = scrollArea_->widget()->minimumSizeHint().height();
    const int most = screen()->availableSize().height() / 2;
    scrollArea_->setMinimumHeight(qMin(form, most));
    setFixedHeight(qMax(kind_.size.height(), layout()->totalMinimumSize().height()));
}

bool RecordEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        fitHeight();
    return QWidget::eventFilter(watched, event);
}

bool RecordEditor::isComplete() const {
    return kind_.isComplete() && actionForm_->fields().isComplete();
}

void RecordEditor::save() {
    kind_.save(actionForm_->fields().action());
}

void RecordEditor::updateSaveButton() {
    save_->setEnabled(isComplete());
}

void RecordEditor::requestSave() {
    if (!isComplete() || !actionForm_->complete())
        return;
    if (actionForm_->fields().type != ActionType::executeShell) {
        save();
        return;
    }
    presentAlert(
        *this,
        {.title = localizedString("alert_shell_title"),
         .message = localizedString("alert_shell_message"),
         .cancel = localizedString("button_cancel"),
         .destructive = localizedString("button_save")},
        [this] { save(); });
}

void RecordEditor::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (focusProxy() == &actionForm_->keyCapture())
        QMetaObject::invokeMethod(this, &RecordEditor::scrollToAction, Qt::QueuedConnection);
}

void RecordEditor::keyPressEvent(QKeyEvent* event) {
    // Before the sheet closes itself on it.
    if (event->key() == Qt::Key_Escape)
        onCancel_();
    else
        QWidget::keyPressEvent(event);
}

} // namespace velmora
