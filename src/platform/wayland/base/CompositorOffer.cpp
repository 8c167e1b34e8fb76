#include "platform/wayland/base/CompositorOffer.h"

#include "platform/wayland/base/Owned.h"

#include <wayland-client.h>

namespace velmora {

std::optional<CompositorOffer> askCompositor() {
    const auto display = owned(wl_display_connect(nullptr), wl_display_disconnect);
    if (!display)
        return {};
    static constexpr wl_registry_listener listener = {
        .global =
            [](void* offer, wl_registry*, std::uint32_t, const char* interface,
               std::uint32_t version) {
                static_cast<CompositorOffer*>(offer)->insert(interface, version);
            },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    CompositorOffer offer;
    const auto registry = owned(wl_display_get_registry(display.get()), wl_registry_destroy);
    wl_registry_add_listener(registry.get(), &listener, &offer);
    if (wl_display_roundtrip(display.get()) < 0)
        return {};
    return offer;
}

} // namespace velmora
