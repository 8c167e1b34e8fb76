#pragma once

#include "platform/x11/PanelStacking.h"
#include "platform/x11/RaiseLimiter.h"
#include "platform/x11/X11Connection.h"

#include <QElapsedTimer>
#include <QTimer>
#include <unordered_set>

namespace velmora {

/// Keeps a top-level window of this process above the others by watching the root window's
/// children. Does nothing while nothing is restacked. Main thread only.
class X11StackKeeper {
public:
    /// `window` exists on the server and outlives this.
    X11StackKeeper(X11Connection& connection, xcb_window_t window);

    /// Raises the window now where something covers it, whatever was raised lately.
    void raiseNow() { check(true); }

private:
    void handleEvent(const xcb_generic_event_t& event);
    void scheduleCheck();
    void check(bool evenIfRaisedLately);
    std::vector<WindowAbove> readWindowsAbove();
    QSize readScreenSize() const;
    QRect readFrame(xcb_window_t window) const;
    RaiseLimiter::Time now() const { return RaiseLimiter::Time(clock_.elapsed()); }

    X11Connection& connection_;
    xcb_window_t window_;
    RaiseLimiter limiter_;
    QElapsedTimer clock_;
    QTimer checkTimer_;
    std::unordered_set<xcb_window_t> above_; ///< children of the root, kept by their events
    X11Connection::Subscription subscription_;
};

} // namespace velmora
