#include "platform/x11/X11KeyboardEvents.h"

#include "platform/x11/AbandonedKeys.h"
#include "platform/x11/ExactModifiers.h"
#include "platform/x11/SyntheticKeys.h"
#include "platform/x11/XcbExtension.h"
#include "platform/x11/Xkb.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <xcb/xtest.h>

namespace velmora {

/// The keyboard's state when a key is about to be sent.
struct X11KeyboardEvents::Before {
    uint8_t locked = 0;
    uint8_t keymap[32] = {};
};

X11KeyboardEvents::X11KeyboardEvents(X11Connection& connection, const X11Keyboard& keyboard)
    : connection_(connection), keyboard_(keyboard) {}

X11KeyboardEvents::~X11KeyboardEvents() {
    if (pressed_.empty())
        return;
    release(pressed_.back(), 0);
    // The connection may be closed next, and a server drops what it has not read by then.
    askBefore();
}

void X11KeyboardEvents::releaseAbandonedKeys() {
    if (findExtension(connection_, xcb_test_id))
        velmora::releaseAbandonedKeys(connection_);
}

std::unique_ptr<EventSource> X11KeyboardEvents::createEventSource(EventSourceState) {
    if (!keyboard_.isAvailable() || !findExtension(connection_, xcb_test_id))
        return nullptr;
    if (!lateSwitcher_) {
        lateSwitcher_ = std::make_unique<LateSwitcher>(connection_);
        trial_ = ChordTrial::open();
        watcher_ = std::make_unique<KeyWatcher>(connection_);
    }
    return std::make_unique<EventSource>();
}

std::optional<KeyboardEvent>
X11KeyboardEvents::createKeyboardEvent(EventSource&, KeyCode keyCode, bool keyDown) {
    if (!keyboard_.positions().keycode(keyCode))
        return std::nullopt;
    const XcbOwned<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        connection_, xcb_xkb_get_state(connection_, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return KeyboardEvent{keyCode, keyDown, state ? keyboard_.modifiers().flags(state->mods) : 0};
}

void X11KeyboardEvents::post(EventTapLocation, const KeyboardEvent& event) {
    // No key has the keycode 0.
    const xcb_keycode_t keycode = keyboard_.positions().keycode(event.keyCode).value_or(0);
    if (!keycode)
        return;
    const uint8_t mask = keyboard_.modifiers().mask(event.flags);
    if (event.keyDown)
        press(keycode, mask);
    else
        release(keycode, mask);
    xcb_flush(connection_);
}

X11KeyboardEvents::Before X11KeyboardEvents::askBefore() const {
    const auto stateCookie = xcb_xkb_get_state(connection_, XCB_XKB_ID_USE_CORE_KBD);
    const auto keymapCookie = xcb_query_keymap(connection_);
    const XcbOwned<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(connection_, stateCookie, nullptr));
    const XcbOwned<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(connection_, keymapCookie, nullptr));
    Before before;
    if (state)
        before.locked = state->lockedMods;
    if (keymap)
        std::memcpy(before.keymap, keymap->keys, sizeof before.keymap);
    return before;
}

void X11KeyboardEvents::press(xcb_keycode_t keycode, uint8_t mask) {
    // One key at a time: none can be forgotten.
    if (!pressed_.empty())
        release(pressed_.back(), 0);
    // A combination without modifiers leaves no switcher open, whoever takes it.
    pressedMask_ = mask;
    std::optional<ChordTrial::Question> question;
    if (mask && trial_)
        question = trial_->ask(keycode, mask);
    const Before before = askBefore();
    const bool taken = question && trial_->isTaken(*question);

    auto held = keyboard_.modifiers().keysDown(before.keymap);
    std::erase(held, keycode);
    {
        const ExactModifiers exact(connection_, taken ? 0 : mask, before.locked, held);
        // A key that is down already, say that of the hot key, would swallow the press.
        if (isDown(before.keymap, keycode))
            SyntheticKeys::release(connection_, keycode);
        if (taken)
            pressed_ = keyboard_.modifiers().keysFor(mask);
        pressed_.push_back(keycode);
        notePressed();
        for (const xcb_keycode_t pressed : pressed_)
            SyntheticKeys::press(connection_, pressed);
    }
    if (taken)
        heldWhilePressed_ = std::move(held);
    else
        restore(held);
}

void X11KeyboardEvents::release(xcb_keycode_t keycode, uint8_t mask) {
    const Before before = askBefore();
    auto held = keyboard_.modifiers().keysDown(before.keymap);
    std::erase_if(held, [&](xcb_keycode_t key) {
        return key == keycode || std::ranges::find(pressed_, key) != pressed_.end();
    });
    auto modifiers = std::exchange(pressed_, {});
    std::erase(modifiers, keycode);
    const uint8_t pressedMask = std::exchange(pressedMask_, 0);
    std::optional<xcb_grab_keyboard_cookie_t> switcher;
    {
        // Real modifier keys give the state by themselves.
        const ExactModifiers exact(connection_, modifiers.empty() ? mask : 0, before.locked, held);
        SyntheticKeys::release(connection_, keycode);
        if (!modifiers.empty())
            switcher = lateSwitcher_->askWhetherHeld();
        for (const xcb_keycode_t modifier : modifiers)
            SyntheticKeys::release(connection_, modifier);
        notePressed();
    }
    // A keyboard frozen by a synchronous grab shows the key as down: then the grab says nothing.
    const bool seesRelease =
        switcher && lateSwitcher_->isHeld(*switcher) && !isDown(askBefore().keymap, keycode);
    // A combination that seemed free may be taken for all that: a window manager that reads the
    // keyboard map anew lets go of its keys for a moment.
    if (pressedMask && trial_ && !seesRelease)
        lateSwitcher_->watch(
            keyboard_.modifiers().keysFor(pressedMask), keyboard_.modifiers().silentKey(),
            [this, keycode, pressedMask] {
                return trial_->isTaken(trial_->ask(keycode, pressedMask));
            });
    held.insert(held.end(), heldWhilePressed_.begin(), heldWhilePressed_.end());
    heldWhilePressed_.clear();
    restore(held);
}

void X11KeyboardEvents::restore(const std::vector<xcb_keycode_t>& held) {
    // A second press of a lock key would switch it over.
    std::vector<xcb_keycode_t> keys;
    std::ranges::copy_if(held, std::back_inserter(keys), [this](xcb_keycode_t keycode) {
        return !keyboard_.modifiers().isLockKey(keycode);
    });
    SyntheticKeys::pressAgainIfHeld(connection_, keys);
}

void X11KeyboardEvents::notePressed() {
    const xcb_atom_t property = connection_.atom(pressedKeysProperty);
    if (pressed_.empty())
        xcb_delete_property(connection_, connection_.root(), property);
    else
        xcb_change_property(
            connection_, XCB_PROP_MODE_REPLACE, connection_.root(), property, XCB_ATOM_CARDINAL, 8,
            static_cast<uint32_t>(pressed_.size()), pressed_.data());
}

} // namespace velmora
