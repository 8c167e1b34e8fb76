// What users of KeyboardEvents rely on, asked of the real service and of the stand-in that other
// tests put in its place.

#include "platform/KeyboardEvents.h"
#include "platform/x11/X11Session.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/FakeKeyboardEvents.h"
#include "support/Witness.h"

#include <gmock/gmock.h>

using namespace velmora;
using namespace velmora::test;
using testing::ElementsAre;

namespace {

/// A service and how to see what it posted.
class Subject {
public:
    virtual ~Subject() = default;
    virtual KeyboardEvents& events() = 0;
    /// The presses (true) and releases of the C key with their flags.
    using Posted = std::vector<std::pair<bool, EventFlags>>;
    virtual Posted posted() = 0;
};

class FakeSubject : public Subject {
public:
    KeyboardEvents& events() override { return fake_; }
    Posted posted() override {
        Posted posted;
        for (const KeyboardEvent& event : fake_.posted) {
            if (event.keyCode == 8)
                posted.emplace_back(event.keyDown, event.flags);
        }
        return posted;
    }

private:
    FakeKeyboardEvents fake_;
};

/// Here the user holds the modifiers that the stand-in makes up, one physical key each.
class X11Subject : public Subject {
public:
    X11Subject() {
        for (const char* key : {"LFSH", "LCTL", "LALT", "LWIN"})
            driver_.pressKey(key, Driver::Keyboard::Physical);
    }
    KeyboardEvents& events() override { return session_->keyboardEvents(); }
    Posted posted() override {
        witness_.waitForInput(22); // the held keys are let go and pressed again around C, twice
        Posted posted;
        for (const Witness::Event& event : witness_.keys()) {
            if (event.detail != driver_.keycode("AB03"))
                continue;
            EventFlags flags = 0;
            flags |= event.state & 1 ? kCGEventFlagMaskShift : 0;
            flags |= event.state & 4 ? kCGEventFlagMaskControl : 0;
            flags |= event.state & 8 ? kCGEventFlagMaskAlternate : 0;
            flags |= event.state & 64 ? kCGEventFlagMaskCommand : 0;
            posted.emplace_back(event.type == XCB_KEY_PRESS, flags);
        }
        return posted;
    }

private:
    Witness witness_;
    Driver driver_;
    std::unique_ptr<X11Session> session_ = X11Session::create();
};

template<typename T>
class AnyKeyboardEvents : public testing::Test {
protected:
    T subject;
};
using Subjects = testing::Types<FakeSubject, X11Subject>;
TYPED_TEST_SUITE(AnyKeyboardEvents, Subjects);

TYPED_TEST(AnyKeyboardEvents, StartWithTheSessionsFlagsAndPostOnlyTheirOwn) {
    KeyboardEvents& events = this->subject.events();
    const auto source = events.createEventSource(EventSourceState::combinedSessionState);
    ASSERT_TRUE(source);
    auto down = events.createKeyboardEvent(*source, 8, true);
    auto up = events.createKeyboardEvent(*source, 8, false);
    ASSERT_TRUE(down && up);
    constexpr EventFlags everything = 0x1E0000;
    EXPECT_EQ(down->flags, everything);
    down->setFlags(kCGEventFlagMaskCommand);
    up->setFlags(kCGEventFlagMaskCommand);
    events.post(EventTapLocation::sessionEventTap, *down);
    events.post(EventTapLocation::sessionEventTap, *up);
    EXPECT_THAT(
        this->subject.posted(),
        ElementsAre(
            std::pair(true, kCGEventFlagMaskCommand), std::pair(false, kCGEventFlagMaskCommand)));
}

} // namespace
