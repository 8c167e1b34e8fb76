#include "platform/x11/grants/X11InputGrants.h"

#include "foundation/LocalizedString.h"
#include "platform/x11/grants/EveryKeyGrant.h"
#include "platform/x11/grants/HotKeyGrant.h"
#include "platform/x11/grants/MouseButtonGrant.h"

namespace velmora {
namespace {

/// What this server can grant to nobody.
class NoGrant final : public InputGrant {
public:
    NoGrant() : InputGrant({}) { setState(State::refused, localizedString("grant_not_offered")); }
};

} // namespace

X11InputGrants::X11InputGrants(X11Connection& connection, const X11Keyboard& keyboard)
    : connection_(connection), keyboard_(keyboard) {
    if (keyboard.isAvailable())
        xinput_ = XInput::find(connection);
}

std::unique_ptr<InputGrant> X11InputGrants::hotKey(const Chord& chord, KeyHandler pressed) {
    if (!xinput_)
        return std::make_unique<NoGrant>();
    return std::make_unique<HotKeyGrant>(
        connection_, keyboard_, *xinput_, chord, std::move(pressed));
}

std::unique_ptr<InputGrant>
X11InputGrants::mouseButton(std::int64_t number, std::function<void()> pressed) {
    return std::make_unique<MouseButtonGrant>(connection_, keyboard_, number, std::move(pressed));
}

std::unique_ptr<InputGrant> X11InputGrants::everyKey(QWidget& view, KeyHandler handler) {
    if (!xinput_)
        return std::make_unique<NoGrant>();
    return std::make_unique<EveryKeyGrant>(
        connection_, keyboard_, *xinput_, view, std::move(handler));
}

KeyCode X11InputGrants::keyCode(std::uint32_t nativeScanCode) const {
    // Qt's scan code on X11 is the keycode.
    return keyboard_.positions()
        .position(static_cast<xcb_keycode_t>(nativeScanCode))
        .value_or(kNoKeyCode);
}

} // namespace velmora
