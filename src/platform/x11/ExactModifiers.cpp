#include "platform/x11/ExactModifiers.h"

#include "platform/x11/SyntheticKeys.h"
#include "platform/x11/Xkb.h"

namespace velmora {
namespace {

/// Locks exactly `mask` and ends latches: a latch (sticky keys) is meant for the next key, and the
/// combination is that key.
void lockModifiers(xcb_connection_t* connection, uint8_t mask) {
    constexpr uint8_t all = 0xff;
    xcb_xkb_latch_lock_state(
        connection, XCB_XKB_ID_USE_CORE_KBD, all, mask, false, 0, all, false, 0);
}

} // namespace

ExactModifiers::ExactModifiers(
    xcb_connection_t* connection, uint8_t mask, uint8_t lockedBefore,
    std::span<const xcb_keycode_t> held)
    : connection_(connection), lockedBefore_(lockedBefore) {
    for (const xcb_keycode_t keycode : held)
        SyntheticKeys::release(connection_, keycode);
    lockModifiers(connection_, mask);
}

ExactModifiers::~ExactModifiers() {
    lockModifiers(connection_, lockedBefore_);
}

} // namespace velmora
