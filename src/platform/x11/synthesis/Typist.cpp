#include "platform/x11/synthesis/Typist.h"

#include "platform/x11/base/XInput.h"
#include "platform/x11/base/Xcb.h"
#include "platform/x11/synthesis/AbandonedKeys.h"
#include "platform/x11/synthesis/KeyboardTurn.h"
#include "platform/x11/synthesis/SyntheticKeys.h"

#include <utility>
#include <xcb/xtest.h>

namespace velmora {
namespace {

bool usesXkb(xcb_connection_t* connection) {
    if (!findExtension(connection, xcb_xkb_id))
        return false;
    const XcbOwned<xcb_xkb_use_extension_reply_t> use(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    return use && use->supported;
}

} // namespace

std::unique_ptr<Typist> Typist::open(const ModifierMap& modifiers) {
    auto connection = X11Connection::open();
    if (!connection || !findExtension(*connection, xcb_test_id) || !usesXkb(*connection) ||
        !XInput::find(*connection))
        return nullptr;
    return std::unique_ptr<Typist>(new Typist(std::move(connection), modifiers));
}

Typist::Typist(std::unique_ptr<X11Connection> connection, const ModifierMap& modifiers)
    : connection_(std::move(connection)),
      modifiers_(modifiers),
      trial_(*connection_),
      keyboards_(*connection_),
      lateSwitcher_(*connection_) {
    connection_->atom(pressedKeysProperty); // known from now on
    releaseAbandonedKeys(*connection_);
}

Typist::~Typist() {
    if (pressed_.empty())
        return;
    release(pressed_.back(), 0);
    // The connection is closed next, and a server drops what it has not read by then.
    const XcbOwned<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(*connection_, xcb_get_input_focus(*connection_), nullptr));
}

void Typist::press(xcb_keycode_t keycode, uint8_t mask) {
    // One key at a time: none can be forgotten.
    if (!pressed_.empty())
        release(pressed_.back(), 0);
    {
        KeyboardTurn turn(*connection_, modifiers_, keyboards_);
        // A combination without modifiers leaves no switcher open, whoever takes it.
        const bool taken = mask && trial_.isTaken(trial_.ask(keycode, mask));
        turn.setModifiers(taken ? 0 : mask);
        // A key that is down already, say that of the hot key, would swallow the press.
        if (turn.wasDown(keycode))
            SyntheticKeys::release(*connection_, keycode);
        if (taken)
            pressed_ = modifiers_.keysFor(mask);
        pressed_.push_back(keycode);
        pressedMask_ = mask;
        notePressed();
        for (const xcb_keycode_t pressed : pressed_)
            SyntheticKeys::press(*connection_, pressed);
        if (!taken)
            turn.giveBackModifiers(keycode);
    }
    if (!watcher_)
        watcher_.emplace(*connection_);
}

void Typist::release(xcb_keycode_t keycode, uint8_t mask) {
    auto withKey = std::exchange(pressed_, {});
    std::erase(withKey, keycode);
    const uint8_t pressedMask = std::exchange(pressedMask_, 0);
    std::optional<LateSwitcher::Question> switcher;
    {
        KeyboardTurn turn(*connection_, modifiers_, keyboards_);
        // Real modifier keys give the state by themselves.
        turn.setModifiers(withKey.empty() ? mask : 0, withKey);
        SyntheticKeys::release(*connection_, keycode);
        if (!withKey.empty())
            switcher = lateSwitcher_.ask();
        for (const xcb_keycode_t modifier : withKey)
            SyntheticKeys::release(*connection_, modifier);
        notePressed();
        turn.giveBackModifiers(keycode);
    }
    // A combination that seemed free may be taken for all that: a window manager that reads the
    // keyboard map anew lets go of its keys for a moment.
    if (pressedMask && !(switcher && lateSwitcher_.willSeeRelease(*switcher, keycode)))
        lateSwitcher_.watch(
            modifiers_.keysFor(pressedMask), modifiers_.silentKey(), [this, keycode, pressedMask] {
                return trial_.isTaken(trial_.ask(keycode, pressedMask));
            });
}

void Typist::notePressed() {
    const xcb_atom_t property = connection_->atom(pressedKeysProperty);
    if (pressed_.empty())
        xcb_delete_property(*connection_, connection_->root(), property);
    else
        xcb_change_property(
            *connection_, XCB_PROP_MODE_REPLACE, connection_->root(), property, XCB_ATOM_CARDINAL,
            8, static_cast<uint32_t>(pressed_.size()), pressed_.data());
}

} // namespace velmora
