#include "input/HotKeyManager.h"

#include "overlay/ScreenManager.h"
#include "support/FakeAccessibility.h"
#include "support/FakeEventTaps.h"
#include "support/FakeScreens.h"
#include "support/TestDisplay.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr KeyCode positionOfM = 46;

/// Makes windows that nobody sees.
struct NoPanels : PanelWindows {
    struct Panel : PanelWindow {
        void setLevel(int) override {}
        void setCollectionBehavior(unsigned) override {}
        void setBackgroundColor(const QColor&) override {}
        void setHasShadow(bool) override {}
        void setOpaque(bool) override {}
        void setIgnoresMouseEvents(bool) override {}
        void setAlphaValue(double) override {}
        void orderFrontRegardless() override {}
        void setContentView(QWidget* view) override { delete view; }
    };
    std::unique_ptr<PanelWindow> create(const QRectF&, unsigned) override {
        return std::make_unique<Panel>();
    }
};

class HotKeyManagerTest : public testing::Test {
protected:
    HotKeyManagerTest() {
        controller_.setup(std::make_unique<QWidget>());
        manager_.overlayController = &controller_;
    }

    /// Presses a key; whether the bar was toggled once the loop came to it.
    bool toggles(KeyCode keyCode, EventFlags flags, const QString& characters = {}) {
        const bool before = controller_.isOverlayVisible;
        swallowed_ = taps_.sendKey(keyCode, flags, characters);
        EXPECT_EQ(controller_.isOverlayVisible, before) << "toggled inside the tap";
        QCoreApplication::processEvents();
        return controller_.isOverlayVisible != before;
    }

    test::FakeScreens screens_;
    ScreenManager screenManager_{screens_};
    NoPanels windows_;
    OverlayController controller_{screenManager_, windows_};
    test::FakeAccessibility accessibility_;
    test::FakeEventTaps taps_;
    HotKeyManager manager_{taps_, accessibility_, 1ms};
    bool swallowed_ = false;
};

TEST_F(HotKeyManagerTest, MatchesThePositionOfMWithOptionAmongAnyModifiers) {
    manager_.setupHotKeys();
    for (EventFlags mix = 0; mix < 0x20; ++mix) {
        const EventFlags flags = mix << 16; // Caps Lock, Shift, Control, Option, Command
        SCOPED_TRACE(flags);
        const bool matches = flags & 0x80000;
        EXPECT_EQ(toggles(positionOfM, flags), matches);
        EXPECT_EQ(swallowed_, matches);
        EXPECT_FALSE(toggles(45, flags, u"m"_s)) << "another position that types m";
        EXPECT_FALSE(swallowed_);
    }
    EXPECT_TRUE(toggles(positionOfM, kCGEventFlagMaskAlternate, u","_s)) << "another layout";
}

TEST_F(HotKeyManagerTest, WorksOnceTrustedAndAgainAfterTheTapWasSwitchedOff) {
    accessibility_.trusted = false;
    manager_.setupHotKeys();
    ASSERT_TRUE(test::waitFor([&] { return accessibility_.questions >= 3; }));
    EXPECT_TRUE(taps_.taps.empty());
    accessibility_.trusted = true;
    ASSERT_TRUE(test::waitFor([&] { return !taps_.taps.empty(); }));
    EXPECT_TRUE(toggles(positionOfM, kCGEventFlagMaskAlternate));
    taps_.disable(*taps_.taps.front(), EventType::tapDisabledByUserInput);
    EXPECT_TRUE(toggles(positionOfM, kCGEventFlagMaskAlternate));
    EXPECT_EQ(taps_.taps.size(), 1U);
}

} // namespace
} // namespace velmora
