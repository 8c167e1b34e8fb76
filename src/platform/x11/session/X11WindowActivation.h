#pragma once

#include "platform/WindowActivation.h"
#include "platform/x11/base/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QPointer>
#include <QWidget>

namespace velmora {

/// Activates a window once it can be: with a window manager when that manages the window, through
/// _NET_ACTIVE_WINDOW; without one when the window is viewable, by setting the input focus. The
/// last request wins. Main thread only.
///
/// A click on a blocked window makes window managers focus it; Qt asks for the dialog instead, but
/// with a time before the click, which they refuse. So the focus is followed here.
class X11WindowActivation : public WindowActivation, private QAbstractNativeEventFilter {
public:
    explicit X11WindowActivation(X11Connection& connection);

    void makeKeyAndOrderFront(QWidget& window) override;

private:
    /// Watches for the focus on Qt's connection.
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void handle(const xcb_generic_event_t& event);
    void askServerTime();
    void activateWhenReady(xcb_timestamp_t time);
    bool windowManagerActivates() const;
    bool isManaged() const;
    bool isViewable() const;
    void requestActivation(xcb_timestamp_t time);

    X11Connection& connection_;
    QPointer<QWidget> widget_;       ///< waits for its activation
    xcb_window_t window_ = XCB_NONE; ///< that widget's
    X11Connection::Subscription subscription_;
};

} // namespace velmora
