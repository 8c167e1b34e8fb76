#include "input/HotKeyManager.h"

#include "foundation/UserDefaults.h"
#include "overlay/ScreenManager.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputGrants.h"
#include "support/FakePanels.h"
#include "support/FakeScreens.h"
#include "support/TestDisplay.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

constexpr KeyCode positionOfM = 46;

class HotKeyManagerTest : public testing::Test {
protected:
    HotKeyManagerTest() {
        controller_.setup(std::make_unique<QWidget>());
        manager_.overlayController = &controller_;
    }

    /// Presses a key; whether the bar was toggled once the loop came to it.
    bool toggles(KeyCode keyCode, EventFlags flags) {
        const bool before = controller_.isOverlayVisible;
        inputGrants_.sendKey(keyCode, flags);
        EXPECT_EQ(controller_.isOverlayVisible, before) << "toggled inside the grant";
        QCoreApplication::processEvents();
        return controller_.isOverlayVisible != before;
    }

    const QTemporaryDir folder_;
    UserDefaults defaults_{folder_.path() + u"/velmora.conf"_s};
    Preferences preferences_{defaults_};
    test::FakeScreens screens_;
    ScreenManager screenManager_{screens_};
    test::FakePanels panels_{screens_};
    OverlayController controller_{screenManager_, preferences_, panels_};
    test::FakeAccessibility accessibility_;
    test::FakeInputGrants inputGrants_;
    HotKeyManager manager_{preferences_, inputGrants_, accessibility_, 1ms};
};

TEST_F(HotKeyManagerTest, MatchesThePositionOfMWithOptionAmongAnyModifiers) {
    manager_.setupHotKeys();
    for (EventFlags mix = 0; mix < 0x20; ++mix) {
        const EventFlags flags = mix << 16; // Caps Lock, Shift, Control, Option, Command
        EXPECT_EQ(toggles(positionOfM, flags), bool(flags & 0x80000)) << flags;
        EXPECT_FALSE(toggles(45, flags)) << flags;
    }
}

TEST_F(HotKeyManagerTest, WorksOnceTrusted) {
    accessibility_.trusted = false;
    manager_.setupHotKeys();
    ASSERT_TRUE(test::waitFor([&] { return accessibility_.questions >= 3; }));
    EXPECT_TRUE(inputGrants_.grants.empty());
    accessibility_.trusted = true;
    ASSERT_TRUE(test::waitFor([&] { return !inputGrants_.grants.empty(); }));
    EXPECT_TRUE(toggles(positionOfM, kCGEventFlagMaskAlternate));
    manager_.setupHotKeys();
    EXPECT_EQ(inputGrants_.grants.size(), 1U);
}

TEST_F(HotKeyManagerTest, FollowsThePreferencesAndTellsWhatHoldsItUp) {
    const HotKey superSpace{{u"Command"_s}, 49, u"Space"_s};
    preferences_.setHotKey(superSpace);
    EXPECT_TRUE(inputGrants_.grants.empty()) << "nothing is watched yet";
    manager_.setupHotKeys();
    EXPECT_TRUE(toggles(49, kCGEventFlagMaskCommand | kCGEventFlagMaskShift));
    EXPECT_FALSE(toggles(positionOfM, kCGEventFlagMaskAlternate));

    QStringList problems;
    QObject::connect(&manager_, &HotKeyManager::problemChanged, &manager_, [&] {
        problems << manager_.problem();
    });
    inputGrants_.otherTakes({test::Input::hotKey});
    preferences_.setHotKey({});
    inputGrants_.otherTakes({});
    EXPECT_EQ(problems.size(), 2) << qPrintable(problems.join(u'\n'));
    EXPECT_EQ(problems.last(), QString());
    EXPECT_TRUE(toggles(positionOfM, kCGEventFlagMaskAlternate));
    EXPECT_FALSE(toggles(49, kCGEventFlagMaskCommand));
}

} // namespace
} // namespace velmora
