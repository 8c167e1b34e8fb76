#pragma once

#include "platform/x11/base/Xcb.h"

#include <QByteArrayList>
#include <QHash>
#include <QSocketNotifier>
#include <functional>
#include <list>
#include <memory>
#include <xcb/xcb.h>

namespace velmora {

/// Our own connection to the X server, beside Qt's. Main thread only. When the server goes away the
/// process ends with one line.
class X11Connection {
public:
    /// Connects to the display that the environment names; nothing when that fails.
    static std::unique_ptr<X11Connection> open();
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    operator xcb_connection_t*() const { return connection_; }
    xcb_window_t root() const { return root_; }
    /// Of the screen that `root()` is the root of.
    int screenNumber() const { return screenNumber_; }

    /// A new window that is never to be mapped.
    xcb_window_t makeHiddenWindow();

    /// The atom called `name`, asked for once.
    xcb_atom_t atom(const QByteArray& name);
    /// Asks for several atoms with one wait.
    void prepareAtoms(const QByteArrayList& names);

    /// Called for each event, on the main thread. Errors of unchecked requests go to the log: where
    /// one is to be expected (a window of another client may have gone), use a checked request.
    using Listener = std::function<void(const xcb_generic_event_t& event)>;

    /// Keeps a listener registered; destroying it ends that.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(X11Connection& connection, std::list<Listener>::iterator position)
            : connection_(&connection), position_(position) {}
        Subscription(Subscription&& other) noexcept { *this = std::move(other); }
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription() { end(); }

    private:
        void end();

        X11Connection* connection_ = nullptr;
        std::list<Listener>::iterator position_;
    };
    [[nodiscard]] Subscription subscribe(Listener listener);

    /// Starts delivery of events; needs the application object. Call once.
    void startDelivery();

    /// Delivers what has arrived. A reply on this connection can queue events without waking the
    /// notifier: delivery also runs each time before the event loop sleeps.
    void deliverEvents();

private:
    X11Connection(xcb_connection_t* connection, int screenNumber);

    xcb_connection_t* connection_;
    int screenNumber_;
    xcb_window_t root_;
    QHash<QByteArray, xcb_atom_t> atoms_;
    std::list<Listener> listeners_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QMetaObject::Connection aboutToBlock_;
    bool delivering_ = false;
};

} // namespace velmora
