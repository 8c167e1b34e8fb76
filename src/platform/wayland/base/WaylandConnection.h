#pragma once

#include "platform/wayland/base/Owned.h"

#include <QByteArray>
#include <QHash>
#include <cstdint>

class QWindow;
struct wl_display;
struct wl_event_queue;
struct wl_interface;
struct wl_proxy;
struct wl_registry;
struct wl_seat;
struct wl_surface;

namespace velmora {

/// Qt's connection to the compositor, for what Qt itself does not ask. Objects made here hear of
/// their events on the main thread, from Qt's event loop. Main thread only.
class WaylandConnection {
public:
    /// Needs the application object, on Qt's platform "wayland".
    WaylandConnection();
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;

    operator wl_display*() const { return display_; }

    /// The global object of that interface, in at most that version, ended by `end`; null when the
    /// compositor does not offer it.
    template<typename T>
    WaylandOwned<T> bind(const wl_interface& interface, std::uint32_t version, void (*end)(T*)) {
        return owned(static_cast<T*>(bindGlobal(interface, version)), end);
    }

    /// Qt's own objects; null when there are none.
    static wl_seat* seat();
    static wl_surface* surface(QWindow& window);

    /// Sends what was asked for.
    void flush();

    /// A queue of our own. Objects that are put there, and those made from them, hear of their
    /// events in roundTrip() alone, so that nothing else happens meanwhile; takeBack() hands them
    /// to Qt's event loop.
    void putAside(wl_proxy* object);
    void takeBack(wl_proxy* object);
    /// Waits for the compositor's answers to all that was asked and handles those to objects put
    /// aside.
    void roundTrip();

private:
    struct Global {
        std::uint32_t name;
        std::uint32_t version;
    };

    void* bindGlobal(const wl_interface& interface, std::uint32_t version);

    wl_display* display_;
    wl_event_queue* queue_;
    wl_registry* registry_;
    QHash<QByteArray, Global> globals_; ///< the first of each interface
};

} // namespace velmora
