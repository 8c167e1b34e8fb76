#include "platform/x11/grants/X11EventTaps.h"

#include "platform/x11/grants/X11ChordGrab.h"
#include "platform/x11/grants/X11EventTap.h"
#include "platform/x11/grants/X11KeyboardGrab.h"
#include "platform/x11/grants/X11MouseButtonGrab.h"

namespace velmora {
namespace {

/// Makes the grab for each kind of interest.
struct GrabMaker {
    X11Connection& connection;
    const X11Keyboard& keyboard;
    const XInput& xinput;
    X11Grab::Sink& sink;

    std::unique_ptr<X11Grab> operator()(const TapInterest::Chord& chord) const {
        return std::make_unique<X11ChordGrab>(connection, keyboard, xinput, chord, std::move(sink));
    }
    std::unique_ptr<X11Grab> operator()(const TapInterest::MouseButtons& buttons) const {
        return std::make_unique<X11MouseButtonGrab>(connection, keyboard, buttons, std::move(sink));
    }
    std::unique_ptr<X11Grab> operator()(const TapInterest::EveryKey& everyKey) const {
        return std::make_unique<X11KeyboardGrab>(
            connection, keyboard, xinput, everyKey, std::move(sink));
    }
};

} // namespace

X11EventTaps::X11EventTaps(X11Connection& connection, const X11Keyboard& keyboard)
    : connection_(connection), keyboard_(keyboard), xinput_(XInput::find(connection)) {}

std::unique_ptr<EventTap> X11EventTaps::create(
    EventTapLocation, EventTapPlacement, EventTapOptions, std::uint64_t eventsOfInterest,
    EventTapInterest interest, Handler handler) {
    if (!xinput_ || !keyboard_.isAvailable())
        return nullptr;
    const auto makeGrab = [&connection = connection_, &keyboard = keyboard_,
                           xinput = *xinput_](const auto& wanted, X11Grab::Sink sink) {
        return std::visit(GrabMaker{connection, keyboard, xinput, sink}, wanted);
    };
    return std::make_unique<X11EventTap>(
        makeGrab, eventsOfInterest, std::move(interest), std::move(handler));
}

KeyCode X11EventTaps::keyCode(std::uint32_t nativeScanCode) const {
    // Qt's scan code on X11 is the keycode.
    return keyboard_.positions()
        .position(static_cast<xcb_keycode_t>(nativeScanCode))
        .value_or(kNoKeyCode);
}

} // namespace velmora
