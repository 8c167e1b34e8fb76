#include "input/HotKeyManager.h"

#include "overlay/ScreenManager.h"
#include "support/FakeAccessibility.h"
#include "support/FakeEventTaps.h"
#include "support/FakePanelWindows.h"
#include "support/FakeScreens.h"
#include "support/TestDisplay.h"

#include <gtest/gtest.h>
#include <optional>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr KeyCode positionOfM = 46;

class HotKeyManagerTest : public testing::Test {
protected:
    HotKeyManagerTest() {
        controller_->setup(std::make_unique<QWidget>());
        manager_->overlayController = &*controller_;
    }

    /// Presses a key; how often the bar was toggled once the loop came to it.
    qsizetype togglesAfter(KeyCode keyCode, EventFlags flags, const QString& characters = {}) {
        const qsizetype before = toggles();
        swallowed_ = taps_.sendKey(keyCode, flags, characters);
        EXPECT_EQ(toggles(), before) << "toggled inside the tap";
        QCoreApplication::processEvents();
        return toggles() - before;
    }

    qsizetype toggles() const {
        return windows_.windows.back()->calls.filter(u"setAlphaValue"_s).size();
    }

    test::FakeScreens screens_;
    ScreenManager screenManager_{screens_};
    test::FakePanelWindows windows_;
    std::optional<OverlayController> controller_{std::in_place, screenManager_, windows_};
    test::FakeAccessibility accessibility_;
    test::FakeEventTaps taps_;
    std::optional<HotKeyManager> manager_{std::in_place, taps_, accessibility_, 1ms};
    bool swallowed_ = false;
};

TEST_F(HotKeyManagerTest, AsksForTheChordAtTheHeadOfTheSession) {
    EXPECT_TRUE(taps_.taps.empty());
    manager_->setupHotKeys();
    ASSERT_EQ(taps_.taps.size(), 1U);
    const auto& tap = *taps_.taps.front();
    EXPECT_EQ(tap.eventsOfInterest, 0x400U);
    EXPECT_TRUE(tap.enabled);
    const auto& chord = std::get<TapInterest::Chord>(tap.interest);
    EXPECT_EQ(chord.keyCode, 46);
    EXPECT_EQ(chord.requiredFlags, 0x80000U);
    manager_->cleanup();
    EXPECT_TRUE(taps_.taps.empty());
    EXPECT_EQ(togglesAfter(positionOfM, kCGEventFlagMaskAlternate), 0);
}

TEST_F(HotKeyManagerTest, MatchesThePositionOfMWithOptionAmongAnyModifiers) {
    manager_->setupHotKeys();
    // The handler itself decides, also in a session that hands over more than was asked for.
    taps_.taps.front()->interest = TapInterest::EveryKey{};
    for (EventFlags mix = 0; mix < 0x20; ++mix) {
        const EventFlags flags = mix << 16; // Caps Lock, Shift, Control, Option, Command
        SCOPED_TRACE(flags);
        const bool matches = flags & 0x80000;
        EXPECT_EQ(togglesAfter(positionOfM, flags), matches ? 1 : 0);
        EXPECT_EQ(swallowed_, matches);
        EXPECT_EQ(togglesAfter(45, flags, u"m"_s), 0) << "another position that types m";
        EXPECT_FALSE(swallowed_);
    }
    EXPECT_EQ(togglesAfter(positionOfM, kCGEventFlagMaskAlternate, u","_s), 1) << "another layout";
    taps_.taps.front()->eventsOfInterest |= eventMaskBit(EventType::flagsChanged);
    EXPECT_FALSE(taps_.send(
        {.type = EventType::flagsChanged,
         .keyCode = positionOfM,
         .flags = kCGEventFlagMaskAlternate}));
}

TEST_F(HotKeyManagerTest, EveryRepeatTogglesAgain) {
    manager_->setupHotKeys();
    const qsizetype before = toggles();
    for (int press = 0; press < 3; ++press)
        taps_.sendKey(positionOfM, kCGEventFlagMaskAlternate);
    QCoreApplication::processEvents();
    EXPECT_EQ(toggles() - before, 3);
    EXPECT_FALSE(controller_->isOverlayVisible);
    EXPECT_TRUE(taps_.passedOn.isEmpty());
}

TEST_F(HotKeyManagerTest, SwallowsThePressThoughNothingIsLeftToToggle) {
    manager_->setupHotKeys();
    taps_.sendKey(positionOfM, kCGEventFlagMaskAlternate);
    controller_.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(taps_.sendKey(positionOfM, kCGEventFlagMaskAlternate));
    manager_.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(taps_.taps.empty());
}

TEST_F(HotKeyManagerTest, WorksAgainAfterTheSessionSwitchedTheTapOff) {
    manager_->setupHotKeys();
    for (const EventType reason :
         {EventType::tapDisabledByTimeout, EventType::tapDisabledByUserInput}) {
        taps_.disable(*taps_.taps.front(), reason);
        EXPECT_TRUE(taps_.taps.front()->enabled);
        EXPECT_EQ(togglesAfter(positionOfM, kCGEventFlagMaskAlternate), 1);
        const auto returned = taps_.taps.front()->handler(reason, {.type = reason, .flags = 7});
        EXPECT_TRUE(returned && returned->type == reason && returned->flags == 7);
    }
}

TEST_F(HotKeyManagerTest, ComesToLifeWhenPermissionIsGivenLater) {
    int prompts = 0;
    accessibility_.setPromptHandler([&] { ++prompts; });
    accessibility_.trusted = false;
    manager_->setupHotKeys();
    ASSERT_TRUE(test::waitFor([&] { return accessibility_.questions >= 3; }));
    EXPECT_EQ(prompts, 1);
    EXPECT_TRUE(taps_.taps.empty());
    accessibility_.trusted = true;
    ASSERT_TRUE(test::waitFor([&] { return !taps_.taps.empty(); }));
    EXPECT_EQ(togglesAfter(positionOfM, kCGEventFlagMaskAlternate), 1);
    EXPECT_EQ(taps_.taps.size(), 1U);
}

TEST_F(HotKeyManagerTest, StaysInactiveWhenTheSessionAllowsNoTap) {
    taps_.allowsTaps = false;
    manager_->setupHotKeys();
    taps_.allowsTaps = true;
    EXPECT_EQ(togglesAfter(positionOfM, kCGEventFlagMaskAlternate), 0);
    EXPECT_FALSE(swallowed_);
    EXPECT_EQ(accessibility_.questions, 1);
    EXPECT_TRUE(taps_.taps.empty());
}

} // namespace
} // namespace velmora
