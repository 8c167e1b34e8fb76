#include "viewkit/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <utility>

namespace velmora {

HeldKeys::HeldKeys(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    // At the window: before any widget, and once however far up the event goes from there.
    if (!watched->isWindowType() ||
        (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    const quint32 key = keyEvent.nativeScanCode();
    if (event->type() == QEvent::KeyRelease) {
        if (!keyEvent.isAutoRepeat())
            lastRelease_ = {key, keyEvent.timestamp(), places_.take(key)};
        return false;
    }
    QObject* popup = QApplication::activePopupWidget();
    QObject* place = popup ? popup : watched;
    if (keyEvent.isAutoRepeat())
        return !allows(keyEvent, place);

    const Release release = std::exchange(lastRelease_, {});
    const bool isPair =
        release.time != 0 && release.time == keyEvent.timestamp() && release.key == key;
    places_.insert(key, isPair ? release.place.data() : place);
    if (!isPair)
        return false;
    // The server repeats a key by a release and a press of the same time. Qt knows the two for a
    // repeat only when both are there as it looks at the first.
    QKeyEvent repeat(
        event->type(), keyEvent.key(), keyEvent.modifiers(), key, keyEvent.nativeVirtualKey(),
        keyEvent.nativeModifiers(), keyEvent.text(), true);
    repeat.setTimestamp(keyEvent.timestamp());
    QApplication::sendEvent(watched, &repeat);
    return true;
}

bool HeldKeys::allows(const QKeyEvent& repeat, const QObject* place) const {
    if (places_.value(repeat.nativeScanCode()) != place)
        return false;
    const QWidget* focus =
        QApplication::activePopupWidget() ? nullptr : QApplication::focusWidget();
    switch (repeat.key()) {
    case Qt::Key_Escape:
        return false;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return qobject_cast<const QPlainTextEdit*>(focus);
    case Qt::Key_Space:
        return focus && focus->testAttribute(Qt::WA_InputMethodEnabled);
    default:
        return true;
    }
}

} // namespace velmora
