#pragma once

#include "platform/EventTap.h"
#include "platform/x11/session/X11Session.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QWidget>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace velmora::test {

/// A key by the code of its position and by XKB's name for it.
struct Key {
    KeyCode code;
    const char* name;
};
inline constexpr Key keyA{0, "AC01"};
inline constexpr Key keyM{46, "AB07"};
inline constexpr Key keyE{14, "AD03"};
inline constexpr Key keyTab{48, "TAB"};
inline constexpr Key keyEscape{53, "ESC"};
inline constexpr Key keyF5{96, "FK05"};
inline constexpr Key keypad1{83, "KP1"};

/// A tap whose handler writes down what it gets, swallows it, and asks again after a refusal.
struct TapUnderTest {
    std::unique_ptr<EventTap> tap;
    std::vector<TapEvent> events; ///< presses and modifier changes
    int refusals = 0;

    /// Makes the tap, disabled.
    void make(EventTaps& taps, EventTapInterest interest);
    size_t presses() const { return pressed().size(); }
    /// The key codes or button numbers of the presses so far.
    std::vector<std::int64_t> pressed() const;
};

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

/// The X button that stands for a button of the platform's numbering.
constexpr uint8_t xButton(std::int64_t number) {
    constexpr uint8_t first[] = {1, 3, 2};
    return number < 3 ? first[number] : static_cast<uint8_t>(number + 5);
}

/// A session on the display: the hands are another client, the application in front is another too,
/// or the view once it has the focus.
class World {
public:
    World();
    ~World();

    EventTaps& taps() { return session->eventTaps(); }
    /// Presses and releases a key while `flags` are held, and waits until the press has arrived
    /// somewhere.
    void type(const Key& key, EventFlags flags, const TapUnderTest& tap);
    /// The same with a mouse button of the platform's numbering.
    void click(std::int64_t number, const TapUnderTest& tap);
    /// The key codes and button numbers whose presses the application in front got.
    std::vector<std::int64_t> reachedFront();
    /// Whether another program could take the keyboard.
    bool isKeyboardFree() { return test::isKeyboardFree(client); }
    /// A view of ours with the keyboard focus.
    QWidget& focusedView();

    /// Of all buttons, those that the core protocol does not tell about included.
    bool isAnyButtonDown() const;

    XClient client;
    Witness witness;
    Driver driver;
    std::unique_ptr<X11Session> session = X11Session::create();

private:
    /// Waits until one more press than before has arrived at the tap or at the front.
    void waitForPress(size_t before, const TapUnderTest& tap);
    size_t arrived(const TapUnderTest& tap) { return tap.presses() + reachedFront().size(); }

    class View;
    std::unique_ptr<View> view_;
};

/// A test with one tap.
class TapsTest : public testing::Test {
protected:
    ~TapsTest() override;
    void makeEnabled(EventTapInterest interest);
    void makeCapture() { makeEnabled(TapInterest::EveryKey{&world.focusedView()}); }
    void type(const Key& key, EventFlags flags = 0) { world.type(key, flags, tap); }
    void click(std::int64_t number) { world.click(number, tap); }

    World world;
    TapUnderTest tap;
    const TapInterest::Chord optionM{keyM.code, kCGEventFlagMaskAlternate};
};

} // namespace velmora::test
