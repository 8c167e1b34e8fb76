#include "platform/x11/synthesis/KeyboardTurn.h"

#include "platform/x11/base/Xcb.h"
#include "platform/x11/synthesis/SyntheticKeys.h"

#include <algorithm>
#include <cstring>

namespace velmora {
namespace {

unsigned askForLocks(xcb_connection_t* connection) {
    return xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD).sequence;
}

/// The keys that one device reports down, one bit a keycode; nothing without keys.
const xcb_input_key_state_t* keyState(const xcb_input_query_device_state_reply_t* reply) {
    if (!reply)
        return nullptr;
    for (auto state = xcb_input_query_device_state_classes_iterator(reply); state.rem;
         xcb_input_input_state_next(&state)) {
        if (state.data->class_id == XCB_INPUT_INPUT_CLASS_KEY)
            return reinterpret_cast<const xcb_input_key_state_t*>(state.data);
    }
    return nullptr;
}

} // namespace

KeyboardTurn::KeyboardTurn(
    xcb_connection_t* connection, const ModifierMap& modifiers, RealKeyboards& keyboards)
    : connection_(connection), modifiers_(modifiers), keyboards_(keyboards) {
    const auto* input = findExtension(connection_, xcb_input_id);
    inputEvents_ = input ? input->first_event : 0;
    keyboards_.takeEvents();
    xcb_grab_server(connection_);
    keyboards_.watchStrokes(true);
    askedLocks_ = askForLocks(connection_);
    askedSession_ = xcb_query_keymap(connection_);
    for (const uint8_t device : keyboards_.devices())
        real_.push_back({device, xcb_input_query_device_state(connection_, device), {}});
}

KeyboardTurn::~KeyboardTurn() {
    lock(locked_);
    xcb_ungrab_server(connection_);
    keyboards_.watchStrokes(false);
    xcb_flush(connection_);
    if (!givenBack_.empty())
        releaseWhatTheUserLetGo();
}

void KeyboardTurn::setModifiers(uint8_t mask, std::span<const xcb_keycode_t> ours) {
    readLocks(askedLocks_);
    readKeys();
    bool letsGoOfLock = false;
    for (const xcb_keycode_t keycode : modifiers_.keysDown(session_)) {
        if (std::ranges::find(ours, keycode) != ours.end())
            continue;
        SyntheticKeys::release(connection_, keycode);
        letsGoOfLock = letsGoOfLock || modifiers_.isLockKey(keycode);
    }
    // Some lock keys unlock as they are let go.
    if (letsGoOfLock)
        readLocks(askForLocks(connection_));
    changed_ = locked_ ^ mask;
    lock(mask);
}

void KeyboardTurn::giveBackModifiers(xcb_keycode_t typed) {
    for (const Keyboard& keyboard : real_) {
        for (const xcb_keycode_t keycode : modifiers_.keysDown(keyboard.keys)) {
            if (keycode == typed || modifiers_.isLockKey(keycode))
                continue;
            // A device passes on no second press of a key that it reports down already.
            const unsigned request =
                SyntheticKeys::releaseOn(connection_, inputEvents_, keyboard.device, keycode);
            SyntheticKeys::pressOn(connection_, inputEvents_, keyboard.device, keycode);
            givenBack_.push_back({keyboard.device, keycode, request});
        }
    }
}

/// A user's release that came after the look at the keyboard and before our press is what that
/// press has undone.
void KeyboardTurn::releaseWhatTheUserLetGo() {
    const XcbOwned<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    const auto strokes = keyboards_.takeEvents();
    for (const GivenBack& key : givenBack_) {
        bool isDown = true;
        for (const auto& stroke : strokes) {
            if (stroke.device == key.device && stroke.keycode == key.keycode &&
                stroke.request < key.request)
                isDown = stroke.isPress;
        }
        if (!isDown)
            SyntheticKeys::releaseOn(connection_, inputEvents_, key.device, key.keycode);
    }
    xcb_flush(connection_);
}

void KeyboardTurn::readKeys() {
    const XcbOwned<xcb_query_keymap_reply_t> session(
        xcb_query_keymap_reply(connection_, askedSession_, nullptr));
    if (session)
        std::memcpy(session_, session->keys, sizeof session_);
    for (Keyboard& keyboard : real_) {
        const XcbOwned<xcb_input_query_device_state_reply_t> reply(
            xcb_input_query_device_state_reply(connection_, keyboard.asked, nullptr));
        if (const auto* state = keyState(reply.get()))
            std::memcpy(keyboard.keys, state->keys, sizeof keyboard.keys);
    }
}

void KeyboardTurn::readLocks(unsigned asked) {
    const XcbOwned<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(connection_, {asked}, nullptr));
    if (state)
        locked_ = state->lockedMods;
}

void KeyboardTurn::lock(uint8_t locks) {
    constexpr uint8_t all = 0xff;
    xcb_xkb_latch_lock_state(
        connection_, XCB_XKB_ID_USE_CORE_KBD, changed_, locks, false, 0, all, false, 0);
}

} // namespace velmora
