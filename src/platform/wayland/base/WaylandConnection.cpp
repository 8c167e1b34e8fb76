#include "platform/wayland/base/WaylandConnection.h"

#include <QGuiApplication>
#include <algorithm>
#include <qpa/qplatformnativeinterface.h>
#include <wayland-client.h>

namespace velmora {
namespace {

/// An object of Qt's Wayland platform, by the name that it has there.
template<typename T>
T* qtObject(const QByteArray& name) {
    return static_cast<T*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration(name));
}

} // namespace

WaylandConnection::WaylandConnection()
    : display_(qtObject<wl_display>("wl_display")), queue_(wl_display_create_queue(display_)) {
    static constexpr wl_registry_listener listener = {
        .global =
            [](void* self, wl_registry*, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                auto& globals = static_cast<WaylandConnection*>(self)->globals_;
                if (!globals.contains(interface))
                    globals.insert(interface, {name, version});
            },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    // The registry itself has to be made on our queue: its events come at once.
    auto* const wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display_));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue_);
    registry_ = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry_, &listener, this);
    roundTrip();
}

WaylandConnection::~WaylandConnection() {
    wl_registry_destroy(registry_);
    wl_event_queue_destroy(queue_);
}

void* WaylandConnection::bindGlobal(const wl_interface& interface, std::uint32_t version) {
    const auto global = globals_.constFind(interface.name);
    if (global == globals_.constEnd())
        return nullptr;
    void* const object =
        wl_registry_bind(registry_, global->name, &interface, std::min(version, global->version));
    takeBack(static_cast<wl_proxy*>(object));
    return object;
}

wl_seat* WaylandConnection::seat() {
    return qtObject<wl_seat>("wl_seat");
}

wl_surface* WaylandConnection::surface(QWindow& window) {
    return static_cast<wl_surface*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window));
}

void WaylandConnection::flush() {
    wl_display_flush(display_);
}

void WaylandConnection::putAside(wl_proxy* object) {
    wl_proxy_set_queue(object, queue_);
}

void WaylandConnection::takeBack(wl_proxy* object) {
    wl_proxy_set_queue(object, nullptr);
}

void WaylandConnection::roundTrip() {
    wl_display_roundtrip_queue(display_, queue_);
}

} // namespace velmora
