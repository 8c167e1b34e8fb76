#include "input/KeyCaptureNSView.h"

#include "foundation/LocalizedString.h"
#include "foundation/MainQueue.h"
#include "input/CapturedKey.h"
#include "input/KeyCaptureAccessible.h"
#include "input/WindowKeyEvent.h"
#include "model/ShortcutAction.h"
#include "viewkit/Rounded.h"
#include "viewkit/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int textInset = 10;
constexpr int placeholderFontSize = 13;
constexpr int combinationFontSize = 14;
constexpr KeyCode keyCodeReturn = 36;
constexpr KeyCode keyCodeTab = 48;
constexpr EventFlags modifierMask = kCGEventFlagMaskCommand | kCGEventFlagMaskAlternate |
                                    kCGEventFlagMaskControl | kCGEventFlagMaskShift;

bool isDefaultKey(const KeyInput& event) {
    return event.keyCode == keyCodeReturn && !(event.flags & modifierMask);
}

/// Tab as it moves through a form, forwards or with Shift backwards.
bool isTab(const KeyInput& event) {
    return event.keyCode == keyCodeTab && !(event.flags & modifierMask & ~kCGEventFlagMaskShift);
}

} // namespace

KeyCaptureNSView::KeyCaptureNSView(InputGrants& inputGrants, QWidget* parent)
    : QWidget(parent), inputGrants_(inputGrants) {
    setFocusPolicy(Qt::StrongFocus);
    KeyCaptureAccessible::install();
    setAccessibleName(localizedString("label_key_combo"));
    updateDisplay({}, {});
}

KeyCaptureNSView::~KeyCaptureNSView() = default;

void KeyCaptureNSView::reset() {
    hasCapture_ = false;
    setReplacedByTab({});
    updateDisplay({}, {});
}

void KeyCaptureNSView::updateDisplay(const QStringList& modifiers, const QString& key) {
    shown_ = {modifiers, key};
    QStringList description{spokenText(), localizedString("key_capture_leave")};
    description.removeAll(QString());
    setAccessibleDescription(description.join(u", "_s));
    update();
}

QString KeyCaptureNSView::spokenText() const {
    QStringList words = modifierWords(shown_.modifiers);
    if (!shown_.key.isEmpty())
        words.append(shown_.key);
    return words.join(u'+');
}

void KeyCaptureNSView::keyDown(const KeyInput& event) {
    const Combination pressed{
        CapturedKey::modifierNames(event.flags),
        CapturedKey::keyName(event.keyCode, event.charactersIgnoringModifiers)};
    if (replacedByTab_ && pressed == shown_) {
        leaveByTab();
        return;
    }
    keyCode_ = event.keyCode;
    const Combination replaced =
        replacedByTab_.value_or(std::exchange(beforePreview_, {}).value_or(shown_));
    if (onKeyCapture)
        onKeyCapture(pressed.modifiers, pressed.key);
    // Last: being told may have reset the view.
    hasCapture_ = true;
    setReplacedByTab(isTab(event) ? std::optional(replaced) : std::nullopt);
}

void KeyCaptureNSView::leaveByTab() {
    const bool isForward = shown_.modifiers.isEmpty();
    const Combination replaced = *replacedByTab_;
    setReplacedByTab({});
    if (onKeyCapture)
        onKeyCapture(replaced.modifiers, replaced.key);
    focusNextPrevChild(isForward);
}

void KeyCaptureNSView::setReplacedByTab(std::optional<Combination> replaced) {
    const bool isChange = replaced.has_value() != replacedByTab_.has_value();
    replacedByTab_ = std::move(replaced);
    if (isChange)
        Q_EMIT tabWayOutChanged();
}

void KeyCaptureNSView::flagsChanged(const KeyInput& event) {
    const QStringList modifiers = CapturedKey::modifierNames(event.flags);
    if (modifiers.isEmpty()) {
        // The last preview stays in place.
        if (!hasCapture_)
            beforePreview_.reset();
        Q_EMIT modifiersReleased();
        return;
    }
    if (hasCapture_)
        return;
    if (!beforePreview_)
        beforePreview_ = shown_;
    if (onKeyCapture)
        onKeyCapture(modifiers, {});
}

bool KeyCaptureNSView::isAnswer(const KeyInput& event) {
    sawFreshPress_ = sawFreshPress_ || event.isFresh;
    return event.kind == KeyInput::Kind::keyDown ? event.isFresh : sawFreshPress_;
}

bool KeyCaptureNSView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Accepted, the key comes as an ordinary press instead of triggering a shortcut.
        if (!hasFocus())
            break;
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Before QWidget makes Tab move the focus. Nothing else in the window sees the key.
        handleWindowKey(static_cast<QKeyEvent&>(*event));
        return true;
    default:
        break;
    }
    return QWidget::event(event);
}

void KeyCaptureNSView::handleWindowKey(QKeyEvent& event) {
    event.accept();
    // The same press has come, or is about to come, through the grant.
    if (grantDelivers_)
        return;
    auto keyEvent = windowKeyEvent(event);
    if (!keyEvent || !isAnswer(*keyEvent))
        return;
    if (keyEvent->keyCode == kNoKeyCode)
        keyEvent->keyCode = inputGrants_.keyCode(event.nativeScanCode());
    if (keyEvent->kind == KeyInput::Kind::flagsChanged)
        flagsChanged(*keyEvent);
    else if (onDefaultKey && isDefaultKey(*keyEvent))
        onDefaultKey();
    else
        keyDown(*keyEvent);
}

void KeyCaptureNSView::focusInEvent(QFocusEvent* event) {
    becomeFirstResponder();
    QWidget::focusInEvent(event);
}

void KeyCaptureNSView::focusOutEvent(QFocusEvent* event) {
    resignFirstResponder();
    QWidget::focusOutEvent(event);
}

void KeyCaptureNSView::hideEvent(QHideEvent* event) {
    resignFirstResponder();
    QWidget::hideEvent(event);
}

void KeyCaptureNSView::becomeFirstResponder() {
    sawFreshPress_ = false;
    beforePreview_.reset();
    startMonitoring();
    Q_EMIT focusChanged(true);
}

void KeyCaptureNSView::resignFirstResponder() {
    stopMonitoring();
    setReplacedByTab({});
    Q_EMIT focusChanged(false);
}

void KeyCaptureNSView::startMonitoring() {
    if (eventMonitor_)
        return;
    eventMonitor_ =
        inputGrants_.everyKey(*this, [this](const KeyInput& event) { handleSessionKey(event); });
    eventMonitor_->onStateChange = [this] {
        if (eventMonitor_->state() != InputGrant::State::granted)
            grantDelivers_ = false;
    };
}

void KeyCaptureNSView::stopMonitoring() {
    grantDelivers_ = false;
    eventMonitor_.reset();
}

void KeyCaptureNSView::handleSessionKey(const KeyInput& event) {
    grantDelivers_ = true;
    if (!isAnswer(event))
        return;
    // Capturing may hide the editor, and the grant goes with the focus.
    if (event.kind == KeyInput::Kind::flagsChanged) {
        flagsChanged(event);
    } else if (onDefaultKey && isDefaultKey(event)) {
        // Not at once: the session waits for its handlers. The key may be pressed again before the
        // first press is answered.
        MainQueue::submit([self = QPointer(this)] {
            if (self && self->eventMonitor_)
                self->onDefaultKey();
        });
    } else {
        keyDown(event);
    }
}

void KeyCaptureNSView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
}

void KeyCaptureNSView::draw(QPainter& painter) const {
    Rounded::fill(painter, rect(), Rounded::controlRadius, palette().color(QPalette::Base));
    if (hasFocus())
        Rounded::drawFocusRing(painter, rect(), Rounded::controlRadius);

    const bool isEmpty = shown_.modifiers.isEmpty() && shown_.key.isEmpty();
    const QFont textFont = isEmpty ? Theme::systemFont(placeholderFontSize)
                                   : Theme::systemFont(combinationFontSize, QFont::Medium);
    painter.setFont(textFont);
    painter.setPen(palette().color(isEmpty ? QPalette::PlaceholderText : QPalette::Text));
    // A combination reads from left to right in every language, beginning at the leading edge.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QString text = isEmpty ? u"クリックしてキーを押す"_s
                                 : CapturedKey::combinationSymbols(shown_.modifiers, shown_.key);
    const QFontMetricsF metrics(textFont);
    const double textWidth = width() - 2 * textInset;
    const QRectF textRect(
        textInset, (height() - metrics.height()) * 0.5, textWidth, metrics.height());
    painter.drawText(
        textRect,
        static_cast<int>(Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft)) |
            Qt::TextSingleLine,
        metrics.elidedText(text, Qt::ElideRight, textWidth));
}

} // namespace velmora
