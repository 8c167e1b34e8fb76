#pragma once

#include "World.h"
#include "platform/x11/X11Session.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

namespace velmora::test {

/// The display that all tests of this program share.
TestDisplay& display();
/// Starts `program` in place of the display's window manager and waits until it has taken over.
void replaceWindowManager(const QString& program);

/// Another program that takes what it is told to; letting go of it is dying.
class OtherProgram {
public:
    /// A key with Option and `also` (modifier bits), whatever else is locked or held, as XInput 2
    /// clients do; false when any of it is refused.
    bool takeChord(uint8_t keycode, uint32_t also = 0);
    /// An X button with any modifiers.
    bool takeButton(uint8_t button);
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

/// A real X server: the hands are another client, the application in front is another too, or the
/// view once it has the focus.
class X11World final : public World {
public:
    X11World();
    ~X11World() override;

    EventTaps& taps() override { return session->eventTaps(); }
    void type(const Key& key, EventFlags flags, const TapUnderTest& tap) override;
    void click(std::int64_t number, const TapUnderTest& tap) override;
    std::vector<std::int64_t> reachedFront() override;
    void holdElsewhere(bool hold) override;
    void holdKeyboardElsewhere(bool hold) override;
    bool isKeyboardFree() override { return test::isKeyboardFree(client); }
    QWidget& focusedView() override;

    /// Takes the physical keyboard out of the session and puts it back.
    void replugKeyboard();

    /// Of all buttons, those that the core protocol does not tell about included.
    bool isAnyButtonDown() const;

    /// Waits until one more press than before has arrived at the tap or at the front.
    void waitForPress(size_t before, const TapUnderTest& tap);
    size_t arrived(const TapUnderTest& tap) { return tap.presses() + reachedFront().size(); }

    XClient client;
    Witness witness;
    Driver driver;
    std::unique_ptr<X11Session> session = X11Session::create();

private:
    class View;
    std::unique_ptr<View> view_;
    std::unique_ptr<OtherProgram> chordHolder_;
    std::unique_ptr<OtherProgram> keyboardHolder_;
};

} // namespace velmora::test
