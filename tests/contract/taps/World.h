#pragma once

#include "platform/EventTap.h"

#include <QWidget>
#include <memory>
#include <string>
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

/// A tap's handler that writes down what it gets, swallows it, and asks again after a refusal.
struct TapUnderTest {
    std::unique_ptr<EventTap> tap;
    std::vector<TapEvent> events; ///< presses and modifier changes
    int refusals = 0;
    bool asksAgain = true;

    /// Makes the tap, disabled.
    void make(EventTaps& taps, EventTapInterest interest);
    size_t presses() const;
    /// The key codes or button numbers of the presses so far.
    std::vector<std::int64_t> pressed() const;
};

/// A session with somebody in front of it, real or not.
class World {
public:
    virtual ~World() = default;

    virtual EventTaps& taps() = 0;
    /// Presses and releases a key while `flags` are held, and waits until the press has arrived
    /// somewhere.
    virtual void type(const Key& key, EventFlags flags, const TapUnderTest& tap) = 0;
    /// The same with a mouse button of the platform's numbering.
    virtual void click(std::int64_t number, const TapUnderTest& tap) = 0;
    /// The key codes and button numbers whose presses the application in front got.
    virtual std::vector<std::int64_t> reachedFront() = 0;
    /// Another program takes Option+M, the middle, fourth and fifth button, or lets go of them.
    virtual void holdElsewhere(bool hold) = 0;
    /// Another program takes the whole keyboard, or lets go of it.
    virtual void holdKeyboardElsewhere(bool hold) = 0;
    /// Whether another program could take the keyboard.
    virtual bool isKeyboardFree() = 0;
    /// A view of ours with the keyboard focus.
    virtual QWidget& focusedView() = 0;
};

std::unique_ptr<World> makeFakeWorld();
std::unique_ptr<World> makeX11World();

} // namespace velmora::test
