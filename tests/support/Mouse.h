#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace velmora::test {

/// The left mouse button as the session reports it to a window that is shown: views and monitors
/// see it as a real one. Positions in the window's points.
class Mouse {
public:
    explicit Mouse(QWidget& window) : window_(*window.windowHandle()) {}

    /// The time stamp of the next events, in milliseconds.
    quint64 now = 1000;

    void press(QPointF at) { send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton); }
    void drag(QPointF to) { send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton); }
    /// Enters the window at that point.
    void hover(QPointF at) {
        QEnterEvent enter(at, at, window_.mapToGlobal(at));
        QCoreApplication::sendEvent(&window_, &enter);
        send(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
    }
    void release(QPointF at) { send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton); }
    void click(QPointF at) {
        press(at);
        release(at);
    }

private:
    void
    send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons) const {
        QMouseEvent event(type, at, at, window_.mapToGlobal(at), button, buttons, Qt::NoModifier);
        event.setTimestamp(now);
        QCoreApplication::sendEvent(&window_, &event);
    }

    QWindow& window_;
};

} // namespace velmora::test
