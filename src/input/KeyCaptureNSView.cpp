#include "input/KeyCaptureNSView.h"

#include "foundation/LocalizedString.h"
#include "foundation/MainQueue.h"
#include "input/CapturedKey.h"
#include "input/KeyCaptureAccessible.h"
#include "input/WindowKeyEvent.h"
#include "viewkit/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr double cornerRadius = 6;
constexpr double focusBorderWidth = 2;
constexpr int textInset = 10;
constexpr int placeholderFontSize = 13;
constexpr int combinationFontSize = 14;
constexpr KeyCode keyCodeReturn = 36;

bool isDefaultKey(const TapEvent& event) {
    return event.keyCode == keyCodeReturn && CapturedKey::modifierNames(event.flags).isEmpty();
}

} // namespace

KeyCaptureNSView::KeyCaptureNSView(EventTaps& eventTaps, QWidget* parent)
    : QWidget(parent), eventTaps_(eventTaps) {
    setFocusPolicy(Qt::StrongFocus);
    KeyCaptureAccessible::install();
    setAccessibleName(localizedString("label_key_combo"));
    updateDisplay({}, {});
}

KeyCaptureNSView::~KeyCaptureNSView() = default;

void KeyCaptureNSView::reset() {
    hasCapture_ = false;
    updateDisplay({}, {});
}

void KeyCaptureNSView::updateDisplay(const QStringList& modifiers, const QString& key) {
    currentModifiers_ = modifiers;
    currentKey_ = key;
    // Names rather than symbols: this is read aloud.
    const QStringList names = key.isEmpty() ? modifiers : modifiers + QStringList(key);
    setAccessibleDescription(names.join(u'+'));
    update();
}

void KeyCaptureNSView::keyDown(const TapEvent& event) {
    const QStringList modifiers = CapturedKey::modifierNames(event.flags);
    if (onKeyCapture)
        onKeyCapture(
            modifiers, CapturedKey::keyName(event.keyCode, event.charactersIgnoringModifiers));
    // Last: being told may have reset the view.
    hasCapture_ = true;
}

void KeyCaptureNSView::flagsChanged(const TapEvent& event) {
    if (hasCapture_)
        return;
    const QStringList modifiers = CapturedKey::modifierNames(event.flags);
    // Letting go of all modifiers leaves the last preview in place.
    if (!modifiers.isEmpty() && onKeyCapture)
        onKeyCapture(modifiers, {});
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
    // The same press has come, or is about to come, through the tap.
    if (tapDelivers_)
        return;
    const auto keyEvent = windowKeyEvent(event);
    if (!keyEvent)
        return;
    if (keyEvent->type == EventType::keyDown && onDefaultKey && isDefaultKey(*keyEvent))
        onDefaultKey();
    else if (keyEvent->type == EventType::keyDown)
        keyDown(*keyEvent);
    else
        flagsChanged(*keyEvent);
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
    startMonitoring();
    Q_EMIT focusChanged(true);
}

void KeyCaptureNSView::resignFirstResponder() {
    stopMonitoring();
    Q_EMIT focusChanged(false);
}

void KeyCaptureNSView::startMonitoring() {
    if (eventMonitor_)
        return;
    eventMonitor_ = eventTaps_.create(
        EventTapLocation::sessionEventTap, EventTapPlacement::headInsert,
        EventTapOptions::defaultTap,
        eventMaskBit(EventType::keyDown) | eventMaskBit(EventType::flagsChanged),
        TapInterest::EveryKey{.view = this},
        [this](EventType type, const TapEvent& event) { return handleTapEvent(type, event); });
    if (eventMonitor_)
        eventMonitor_->setEnabled(true);
}

void KeyCaptureNSView::stopMonitoring() {
    tapDelivers_ = false;
    eventMonitor_.reset();
}

std::optional<TapEvent> KeyCaptureNSView::handleTapEvent(EventType type, const TapEvent& event) {
    if (!hasFocus())
        return event;
    if (isTapDisabled(type)) {
        tapDelivers_ = false;
        eventMonitor_->setEnabled(true);
        return std::nullopt;
    }
    tapDelivers_ = true;
    // Capturing may hide the editor, and the tap goes with the focus.
    if (type == EventType::keyDown && onDefaultKey && isDefaultKey(event)) {
        // Not from within the tap: a slow handler would be switched off. The key may repeat before
        // the first one is answered.
        MainQueue::submit([self = QPointer(this)] {
            if (self && self->eventMonitor_)
                self->onDefaultKey();
        });
    } else if (type == EventType::keyDown) {
        keyDown(event);
    } else if (type == EventType::flagsChanged) {
        flagsChanged(event);
    }
    return std::nullopt;
}

void KeyCaptureNSView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
}

void KeyCaptureNSView::draw(QPainter& painter) const {
    const double inset = hasFocus() ? focusBorderWidth / 2 : 0;
    painter.setBrush(palette().base());
    painter.setPen(
        hasFocus() ? QPen(palette().highlight().color(), focusBorderWidth) : QPen(Qt::NoPen));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
        cornerRadius - inset);

    const bool isEmpty = currentModifiers_.isEmpty() && currentKey_.isEmpty();
    const QFont textFont = isEmpty ? Theme::systemFont(placeholderFontSize)
                                   : Theme::systemFont(combinationFontSize, QFont::Medium);
    painter.setFont(textFont);
    painter.setPen(palette().color(isEmpty ? QPalette::PlaceholderText : QPalette::Text));
    // A combination reads from left to right in every language, beginning at the leading edge.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QString text = isEmpty ? u"クリックしてキーを押す"_s
                                 : CapturedKey::combinationText(currentModifiers_, currentKey_);
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
