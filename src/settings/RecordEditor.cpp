#include "settings/RecordEditor.h"

#include "foundation/LocalizedString.h"
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
#include <QVBoxLayout>

namespace velmora {
namespace {

constexpr int childSpacing = 20;
constexpr int groupSpacing = 16;

} // namespace

RecordEditor::RecordEditor(
    const Texts& texts, FormGroup* firstGroup, const std::optional<ShortcutAction>& action,
    EventTaps& eventTaps, std::function<void()> onCancel)
    : onCancel_(std::move(onCancel)) {
    constexpr int padding = Theme::defaultPadding;
    setWindowTitle(texts.heading);
    QLabel* heading = headline(texts.heading);
    heading->setAlignment(Qt::AlignCenter);

    actionForm_ = new ActionForm(
        texts.actionHeading, action ? ActionFields(*action) : ActionFields(), eventTaps);
    connect(actionForm_, &ActionForm::fieldsChanged, this, &RecordEditor::updateSaveButton);
    auto* form = new QWidget;
    auto* groups = new QVBoxLayout(form);
    groups->setContentsMargins(padding, 0, padding, 0);
    groups->setSpacing(groupSpacing);
    groups->addWidget(firstGroup);
    groups->addWidget(actionForm_);
    groups->addStretch();
    scrollArea_ = new QScrollArea;
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setFocusPolicy(Qt::NoFocus);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea_->viewport()->setAutoFillBackground(false);
    scrollArea_->setWidget(form);
    form->setAutoFillBackground(false);
    scrollArea_->setAccessibleName(texts.heading);
    // The scroll bar takes its room from the margin: the form's lines stay where they are.
    connect(
        scrollArea_->verticalScrollBar(), &QScrollBar::rangeChanged, groups,
        [this, groups](int, int maximum) {
            const int bar = maximum > 0 ? scrollArea_->verticalScrollBar()->sizeHint().width() : 0;
            groups->setContentsMargins(padding, 0, padding - bar, 0);
        });
    connect(
        actionForm_, &ActionForm::typeChanged, this, &RecordEditor::scrollToAction,
        Qt::QueuedConnection);

    auto* cancel = new QPushButton(localizedString("button_cancel"));
    connect(cancel, &QPushButton::clicked, this, onCancel_);
    save_ = new QPushButton(localizedString("button_save"));
    // Else losing the focus would make it an ordinary button.
    save_->setAutoDefault(false);
    save_->setDefault(true);
    connect(save_, &QPushButton::clicked, this, &RecordEditor::requestSave);
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
}

void RecordEditor::finish(QSize size, QWidget* first) {
    const bool recordsKeys = actionForm_->fields().type == ActionType::pressKey;
    setFocusProxy(recordsKeys ? &actionForm_->keyCapture() : first);
    const int needed = scrollArea_->widget()->minimumSizeHint().width() +
                       scrollArea_->verticalScrollBar()->sizeHint().width();
    setFixedWidth(qMax(size.width(), needed));
    leastHeight_ = size.height();
    scrollArea_->widget()->installEventFilter(this);
    fitHeight();
    updateSaveButton();
}

void RecordEditor::scrollToAction() {
    scrollArea_->widget()->layout()->activate();
    scrollArea_->ensureWidgetVisible(actionForm_, 0, 0);
}

void RecordEditor::fitHeight() {
    const int form = scrollArea_->widget()->minimumSizeHint().height();
    const int most = screen()->availableSize().height() / 2;
    scrollArea_->setMinimumHeight(qMin(form, most));
    setFixedHeight(qMax(leastHeight_, layout()->totalMinimumSize().height()));
}

bool RecordEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        fitHeight();
    return QWidget::eventFilter(watched, event);
}

bool RecordEditor::isValid() const {
    return actionForm_->fields().isComplete();
}

void RecordEditor::updateSaveButton() {
    save_->setEnabled(isValid());
}

void RecordEditor::requestSave() {
    if (!isValid() || !actionForm_->complete())
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
