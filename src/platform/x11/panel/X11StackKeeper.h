#pragma once

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/panel/PanelStacking.h"

#include <QElapsedTimer>
#include <QRect>
#include <QTimer>
#include <unordered_set>

namespace velmora {

/// Keeps a top-level window of this process above the others by watching the root window's
/// children. What happens below it, or beside it, asks the server nothing. Main thread only.
class X11StackKeeper {
public:
    /// `window` exists on the server and outlives this. What is above it already counts too.
    X11StackKeeper(X11Connection& connection, xcb_window_t window);

    /// Raises the window now where something covers it, whatever was raised lately.
    void raiseNow() { check(true); }

private:
    /// A window that is seen over the panel.
    struct Covering {
        xcb_window_t id;
        QRect frame;
        bool overrideRedirect;
    };

    void handleEvent(const xcb_generic_event_t& event);
    void handleConfigured(const xcb_configure_notify_event_t& event);
    void scheduleCheck();
    void check(bool evenIfRaisedLately);
    std::vector<Covering> readCovering();
    Cover judge(const Covering& window);
    bool saysItIsTransient(xcb_window_t window);
    bool hidesTheScreen(const QRect& frame) const;
    bool holdsAClient(xcb_window_t window);
    RaiseLimiter::Time now() const { return RaiseLimiter::Time(clock_.elapsed()); }

    X11Connection& connection_;
    xcb_window_t window_;
    QRect frame_; ///< the window's, pixels of the root window
    RaiseLimiter limiter_;
    QElapsedTimer clock_;
    QTimer checkTimer_;
    // By the last look, and kept by the events since.
    std::unordered_set<xcb_window_t> above_;    ///< children of the root, seen or not
    std::unordered_set<xcb_window_t> covering_; ///< of these, what is seen over the window
    std::unordered_set<xcb_window_t> menus_;    ///< of these, what may be
    X11Connection::Subscription subscription_;
};

} // namespace velmora
