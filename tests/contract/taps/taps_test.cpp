// What EventTaps promises: who gets a press, and when.

#include "World.h"

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr EventFlags option = kCGEventFlagMaskAlternate;
constexpr EventFlags shift = kCGEventFlagMaskShift;
constexpr EventFlags control = kCGEventFlagMaskControl;
constexpr EventFlags command = kCGEventFlagMaskCommand;

TEST_F(TapsTest, AChordIsTakenAndNothingElse) {
    makeEnabled(optionM);
    type(keyM);
    type(keyM, command);
    type(keyA, option);
    EXPECT_THAT(tap.events, IsEmpty());
    EXPECT_THAT(world.reachedFront(), ElementsAre(46, 46, 0));

    for (const EventFlags also :
         {EventFlags(0), shift, command, control, shift | command | control}) {
        type(keyM, option | also);
        ASSERT_FALSE(tap.events.empty());
        EXPECT_EQ(tap.events.back().type, EventType::keyDown);
        EXPECT_EQ(tap.events.back().keyCode, 46);
        EXPECT_EQ(tap.events.back().flags, option | also);
    }
    EXPECT_EQ(tap.events.size(), 5U);
    EXPECT_EQ(world.reachedFront().size(), 3U);
}

TEST_F(TapsTest, BoundButtonsAreTakenAndEditsFollowAtOnce) {
    makeEnabled(TapInterest::MouseButtons{{0, 1, 3, 4, -7, 251, 256 + 5}});
    for (const std::int64_t number : {0, 2, 3, 4, 5})
        click(number);
    EXPECT_THAT(tap.pressed(), ElementsAre(3, 4));
    EXPECT_THAT(world.reachedFront(), ElementsAre(0, 2, 5));

    tap.tap->setInterest(TapInterest::MouseButtons{{4, 5, 2}});
    for (const std::int64_t number : {2, 3, 4, 5})
        click(number);
    EXPECT_THAT(tap.pressed(), ElementsAre(3, 4, 2, 4, 5));
    EXPECT_THAT(world.reachedFront(), ElementsAre(0, 2, 5, 3));

    tap.tap->setInterest(TapInterest::MouseButtons{});
    click(4);
    EXPECT_EQ(tap.presses(), 5U);
}

TEST_F(TapsTest, ARefusalIsReportedAndTheTapWorksOnceTheOtherLetsGo) {
    for (const EventTapInterest& interest :
         {EventTapInterest(optionM), EventTapInterest(TapInterest::MouseButtons{{3}})}) {
        tap = {};
        std::optional<OtherProgram> holder(std::in_place);
        EXPECT_TRUE(holder->takeChord(world.driver.keycode(keyM.name)) && holder->takeButton(8));
        makeEnabled(interest);
        EXPECT_TRUE(waitFor([this] { return tap.refusals > 0; }));
        EXPECT_TRUE(tap.tap->isEnabled()) << "waiting";
        holder.reset();
        // Whether the next try has come shows in the press going to the tap.
        EXPECT_TRUE(waitFor([&] {
            interest.index() == 0 ? type(keyM, option) : click(3);
            return !tap.events.empty();
        }));
    }
}

TEST_F(TapsTest, CaptureTakesEveryKeyWithItsFlagsAndCharacters) {
    TapUnderTest chord;
    chord.make(world.taps(), optionM);
    chord.tap->setEnabled(true);
    makeCapture();
    struct Case {
        Key key;
        EventFlags flags;
        QString characters; ///< not compared when empty
    };
    const std::vector<Case> cases{
        {keyA, 0, u"a"_s},       {keyTab, 0, {}},
        {keyEscape, 0, {}},      {keyTab, option, {}},
        {keyE, command, {}},     {keyM, option, u"m"_s},
        {keyM, control, u"m"_s}, {keyF5, 0, u"F5"_s},
        {keypad1, 0, u"1"_s},    {keyEscape, command | shift | option, {}}};
    for (const Case& c : cases) {
        tap.events.clear();
        type(c.key, c.flags);
        ASSERT_EQ(tap.presses(), 1U);
        const auto press = std::ranges::find(tap.events, EventType::keyDown, &TapEvent::type);
        EXPECT_EQ(press->keyCode, c.key.code);
        EXPECT_EQ(press->flags, c.flags);
        if (!c.characters.isEmpty()) {
            EXPECT_EQ(press->charactersIgnoringModifiers, c.characters);
        }
        if (c.flags) {
            EXPECT_EQ(tap.events.front().type, EventType::flagsChanged);
            EXPECT_TRUE(waitFor([this] {
                return tap.events.back().type == EventType::flagsChanged &&
                       tap.events.back().flags == 0;
            }));
        } else {
            EXPECT_EQ(tap.events.size(), 1U) << "no release, no modifier change";
        }
    }
    EXPECT_THAT(chord.events, IsEmpty());
    EXPECT_THAT(world.reachedFront(), IsEmpty());
}

TEST_F(TapsTest, CaptureWaitsForTheKeyboardWithoutAReport) {
    QWidget& view = world.focusedView();
    std::optional<OtherProgram> holder(std::in_place);
    EXPECT_TRUE(holder->takeKeyboard());
    makeEnabled(TapInterest::EveryKey{&view});
    EXPECT_TRUE(tap.tap->isEnabled());
    holder.reset();
    EXPECT_TRUE(waitFor([this] { return !world.isKeyboardFree(); }));
    type(keyA);
    EXPECT_THAT(tap.pressed(), ElementsAre(0));
    EXPECT_EQ(tap.refusals, 0);
    // It ends at once with the tap.
    tap.tap.reset();
    EXPECT_TRUE(waitFor([this] { return world.isKeyboardFree(); }, 100));
}

} // namespace
