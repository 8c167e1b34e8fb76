#pragma once

#include "World.h"
#include "platform/x11/grants/X11InputGrants.h"
#include "platform/x11/keyboard/X11Keyboard.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/Witness.h"

#include <optional>

namespace velmora::test {

/// Another program that takes what it is told to; letting go of it is dying.
class OtherProgram {
public:
    /// A key with Option and `also` (modifier bits), whatever else is locked or held, as XInput 2
    /// clients do; false when any of it is refused.
    bool takeChord(uint8_t keycode, uint32_t also = 0);
    /// An X button with exactly these modifiers.
    bool takeButton(uint8_t button, uint16_t modifiers = XCB_MOD_MASK_ANY);
    bool takeKeyboard();
    bool takePointer();

private:
    XClient client_;
};

/// The X button that stands for a button's number.
constexpr uint8_t xButton(std::int64_t number) {
    constexpr uint8_t first[] = {1, 3, 2};
    return number >= 0 && number < 3 ? first[number] : static_cast<uint8_t>(number + 5);
}

/// The display: the hands are another client, the application in front is one too. Each test leaves
/// no key and no button down, or fails.
class X11World final : public World {
public:
    X11World();
    ~X11World() override;

    InputGrants& grants() override { return grants_; }
    QWidget& focusedView() override;
    void hold(const Key& key, EventFlags flags, bool repeats, const std::function<bool()>& enough)
        override;
    void click(std::int64_t number) override;
    std::vector<std::int64_t> pressedInFront() override { return inFront(XCB_KEY_PRESS); }
    std::vector<std::int64_t> releasedInFront() override { return inFront(XCB_KEY_RELEASE); }
    void otherTakes(const std::set<Input>& inputs) override;

    /// Returns when the server has done what the grants asked for: a release that is sent then
    /// finds what was let go at the press free.
    void settle() const;
    /// Of all buttons, those that the core protocol does not tell about included.
    bool isAnyButtonDown() const;

    XClient client;
    Witness witness;
    Driver driver;
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    X11Keyboard keyboard{*connection};

private:
    /// Of the events of that type, or that of buttons beside it.
    std::vector<std::int64_t> inFront(uint8_t type);

    class View;
    X11InputGrants grants_{*connection, keyboard};
    std::unique_ptr<View> view_;
    std::optional<OtherProgram> other_;
};

} // namespace velmora::test
