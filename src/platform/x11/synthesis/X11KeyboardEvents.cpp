#include "platform/x11/synthesis/X11KeyboardEvents.h"

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/base/XInput.h"
#include "platform/x11/base/Xcb.h"
#include "platform/x11/synthesis/AbandonedKeys.h"
#include "platform/x11/synthesis/KeyWatcher.h"
#include "platform/x11/synthesis/KeyboardTurn.h"
#include "platform/x11/synthesis/LateSwitcher.h"
#include "platform/x11/synthesis/RealKeyboards.h"
#include "platform/x11/synthesis/SyntheticKeys.h"

#include <optional>
#include <utility>
#include <vector>
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

/// Whether another client (a window manager above all) has a key combination for itself, found out
/// by trying to grab it; waits for the answer. `connection` uses XInput 2 and grabs no keys for
/// other ends: so a combination of our own counts too.
bool isTaken(const X11Connection& connection, xcb_keycode_t keycode, uint8_t mask) {
    // Core grabs and those of XInput 2 do not conflict with each other: each kind is tried, and let
    // go of again.
    const xcb_window_t root = connection.root();
    const auto coreGrab = xcb_grab_key_checked(
        connection, false, root, mask, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_key(connection, keycode, root, mask);
    const uint32_t eventMask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const uint32_t modifiers = mask;
    const auto inputGrab = xcb_input_xi_passive_grab_device(
        connection, XCB_CURRENT_TIME, root, XCB_CURSOR_NONE, keycode, XCB_INPUT_DEVICE_ALL_MASTER,
        1, 1, XCB_INPUT_GRAB_TYPE_KEYCODE, XCB_INPUT_GRAB_MODE_22_ASYNC,
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &eventMask, &modifiers);
    xcb_input_xi_passive_ungrab_device(
        connection, root, keycode, XCB_INPUT_DEVICE_ALL_MASTER, 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
        &modifiers);
    const XcbOwned<xcb_input_xi_passive_grab_device_reply_t> input(
        xcb_input_xi_passive_grab_device_reply(connection, inputGrab, nullptr));
    const XcbOwned<xcb_generic_error_t> coreError(xcb_request_check(connection, coreGrab));
    // The reply lists the modifiers whose grab failed.
    return (input && input->num_modifiers > 0) || coreError;
}

} // namespace

/// Types keys in the user's place, through XTEST and one at a time. A key carries exactly its own
/// modifiers and no modifier key is pressed for it, with one exception: a combination that another
/// client has grabbed, such as the window manager's Alt+Tab, is typed with real modifier keys, held
/// from the press to the release. Their release is what such a client waits for to finish.
class X11KeyboardEvents::Typist {
public:
    /// Types on a connection of its own, so that combinations of ours are like another client's to
    /// it. Nothing when the display takes no more clients or lacks XTEST, XKB or XInput 2.
    /// `modifiers` is the keyboard's map as it is at each time, and outlives this.
    static std::unique_ptr<Typist> open(const ModifierMap& modifiers);
    /// Lets go of what is still pressed.
    ~Typist();
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    /// `mask` are the modifiers to have. The press is with the server before anything else is done.
    void press(xcb_keycode_t keycode, uint8_t mask);
    void release(xcb_keycode_t keycode, uint8_t mask);

private:
    Typist(std::unique_ptr<X11Connection> connection, const ModifierMap& modifiers);
    void notePressed();

    std::unique_ptr<X11Connection> connection_;
    const ModifierMap& modifiers_;
    RealKeyboards keyboards_;
    LateSwitcher lateSwitcher_;
    std::optional<KeyWatcher> watcher_;  ///< there from the first press on
    std::vector<xcb_keycode_t> pressed_; ///< what is down: modifiers, then the key
    uint8_t pressedMask_ = 0;            ///< the modifiers of the key that is down
};

std::unique_ptr<X11KeyboardEvents::Typist>
X11KeyboardEvents::Typist::open(const ModifierMap& modifiers) {
    auto connection = X11Connection::open();
    if (!connection || !findExtension(*connection, xcb_test_id) || !usesXkb(*connection) ||
        !XInput::find(*connection))
        return nullptr;
    return std::unique_ptr<Typist>(new Typist(std::move(connection), modifiers));
}

X11KeyboardEvents::Typist::Typist(
    std::unique_ptr<X11Connection> connection, const ModifierMap& modifiers)
    : connection_(std::move(connection)),
      modifiers_(modifiers),
      keyboards_(*connection_),
      lateSwitcher_(*connection_) {
    connection_->atom(pressedKeysProperty); // known from now on
    releaseAbandonedKeys(*connection_);
}

X11KeyboardEvents::Typist::~Typist() {
    if (pressed_.empty())
        return;
    release(pressed_.back(), 0);
    // The connection is closed next, and a server drops what it has not read by then.
    const XcbOwned<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(*connection_, xcb_get_input_focus(*connection_), nullptr));
}

void X11KeyboardEvents::Typist::press(xcb_keycode_t keycode, uint8_t mask) {
    // One key at a time: none can be forgotten.
    if (!pressed_.empty())
        release(pressed_.back(), 0);
    {
        KeyboardTurn turn(*connection_, modifiers_, keyboards_);
        // A combination without modifiers leaves no switcher open, whoever takes it.
        const bool taken = mask && isTaken(*connection_, keycode, mask);
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

void X11KeyboardEvents::Typist::release(xcb_keycode_t keycode, uint8_t mask) {
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
            modifiers_.keysFor(pressedMask), modifiers_.silentKey(),
            [this, keycode, pressedMask] { return isTaken(*connection_, keycode, pressedMask); });
}

void X11KeyboardEvents::Typist::notePressed() {
    const xcb_atom_t property = connection_->atom(pressedKeysProperty);
    if (pressed_.empty())
        xcb_delete_property(*connection_, connection_->root(), property);
    else
        xcb_change_property(
            *connection_, XCB_PROP_MODE_REPLACE, connection_->root(), property, XCB_ATOM_CARDINAL,
            8, static_cast<uint32_t>(pressed_.size()), pressed_.data());
}

X11KeyboardEvents::X11KeyboardEvents(const X11Keyboard& keyboard) : keyboard_(keyboard) {}

X11KeyboardEvents::~X11KeyboardEvents() = default;

void X11KeyboardEvents::prepare() {
    if (!typist_ && keyboard_.isAvailable())
        typist_ = Typist::open(keyboard_.modifiers());
}

std::unique_ptr<EventSource> X11KeyboardEvents::createEventSource(EventSourceState) {
    prepare();
    return typist_ ? std::make_unique<EventSource>() : nullptr;
}

std::optional<KeyboardEvent>
X11KeyboardEvents::createKeyboardEvent(EventSource&, KeyCode keyCode, bool keyDown) {
    if (!keyboard_.positions().keycode(keyCode))
        return std::nullopt;
    return KeyboardEvent{keyCode, keyDown};
}

void X11KeyboardEvents::post(const KeyboardEvent& event) {
    const auto keycode = keyboard_.positions().keycode(event.keyCode);
    if (!keycode || !typist_)
        return;
    const uint8_t mask = keyboard_.modifiers().mask(event.flags);
    if (event.keyDown)
        typist_->press(*keycode, mask);
    else
        typist_->release(*keycode, mask);
}

} // namespace velmora
