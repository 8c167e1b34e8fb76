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
    if (!watched->isWindowType() || event == corrected_ ||
        (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    const quint32 key = keyEvent.nativeScanCode();
    if (event->type() == QEvent::KeyRelease) {
        lastRelease_ = {key, keyEvent.timestamp(), places_.take(key)};
        return false;
    }
    // The server repeats a key by a release and a press of the same time. Qt's own mark cannot be
    // relied on: it needs both to be there when it looks at the first, and it stays when a release
    // goes to a grab.
    const Release release = std::exchange(lastRelease_, {});
    const bool isRepeat =
        release.time != 0 && release.time == keyEvent.timestamp() && release.key == key;
    QObject* popup = QApplication::activePopupWidget();
    QObject* place = popup ? popup : watched;
    places_.insert(key, isRepeat ? release.place.data() : place);
    if (isRepeat && !allows(keyEvent, place))
        return true;
    if (isRepeat == keyEvent.isAutoRepeat())
        return false;
    QKeyEvent corrected(
        event->type(), keyEvent.key(), keyEvent.modifiers(), key, keyEvent.nativeVirtualKey(),
        keyEvent.nativeModifiers(), keyEvent.text(), isRepeat);
    corrected_ = &corrected;
    QApplication::sendEvent(watched, &corrected);
    corrected_ = nullptr;
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
