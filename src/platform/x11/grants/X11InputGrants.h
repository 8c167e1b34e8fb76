#pragma once

#include "platform/InputGrants.h"
#include "platform/x11/base/XInput.h"

namespace velmora {

class X11Connection;
class X11Keyboard;

/// What an X server lets one client take of the session's input: only what is wanted is grabbed,
/// everything else goes its way without this process seeing it.
class X11InputGrants final : public InputGrants {
public:
    X11InputGrants(X11Connection& connection, const X11Keyboard& keyboard);

    /// Refused when the server lacks XInput 2 or XKB.
    std::unique_ptr<InputGrant> hotKey(const Chord& chord, KeyHandler pressed) override;
    std::unique_ptr<InputGrant>
    mouseButton(std::int64_t number, std::function<void()> pressed) override;
    /// Refused when the server lacks XInput 2 or XKB.
    std::unique_ptr<InputGrant> everyKey(QWidget& view, KeyHandler handler) override;
    KeyCode keyCode(std::uint32_t nativeScanCode) const override;

private:
    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    std::optional<XInput> xinput_; ///< where keys can be granted
};

} // namespace velmora
