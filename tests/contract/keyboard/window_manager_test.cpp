// Combinations that belong to a window manager: it opens its switcher at the press, and must close
// it again after the release, whatever the user holds and however slow it is.

#include "Service.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QDeadlineTimer>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

using namespace velmora;
using namespace velmora::test;

namespace {

constexpr auto physical = Driver::Keyboard::Physical;
constexpr uint8_t lock = 2, alt = 8, numLock = 16;

/// Types Alt+Tab as the program does. `whileDown` runs between the press and the release.
void typeAltTab(
    Service& service, const std::function<void()>& whileDown = [] {}) {
    EXPECT_TRUE(service.post(48, true, kCGEventFlagMaskAlternate));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    whileDown();
    EXPECT_TRUE(service.post(48, false, kCGEventFlagMaskAlternate));
}

/// A display of its own; afterwards the usual one is back.
class OwnDisplay : public testing::TestWithParam<const char*> {
protected:
    ~OwnDisplay() override { qputenv("DISPLAY", usualDisplay_); }

private:
    QByteArray usualDisplay_ = qgetenv("DISPLAY");

protected:
    TestDisplay display;
};

class WindowManager : public OwnDisplay {
protected:
    WindowManager() { display.startWindowManager(QString::fromLatin1(GetParam())); }
};

/// Waits until the window manager has dealt with everything so far, focus and keyboard map
/// included: resizing a window of ours is up to it.
void letManagerCatchUp(const XClient& client) {
    const xcb_window_t window = xcb_generate_id(client);
    xcb_create_window(
        client, 0, window, client.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, 0, nullptr);
    const uint32_t width = 2;
    xcb_configure_window(client, window, XCB_CONFIG_WINDOW_WIDTH, &width);
    EXPECT_TRUE(waitFor([&] {
        const Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(client, xcb_get_geometry(client, window), nullptr));
        return geometry->width == width;
    }));
    xcb_destroy_window(client, window);
}

/// What the user does with the Alt key meanwhile.
enum class UsersAlt { Up, LetGoBetweenPressAndRelease, LetGoAfterwards };

TEST_P(WindowManager, SwitchesWindowsAndLeavesNoSwitcherOpen) {
    XClient client;
    Witness first;
    Witness second(QRect(600, 200, 300, 200));
    Service service;
    Driver driver;
    EXPECT_TRUE(waitFor([&] { return activeWindow(client) == second.window(); }));
    // Where the bar is. xfwm4 keeps the keyboard, after a user's own Alt+Tab too, while the pointer
    // is where its switcher was and no window is below.
    driver.move(200, 3);
    for (const uint8_t locks : {0, lock | numLock}) {
        for (const UsersAlt usersAlt :
             {UsersAlt::Up, UsersAlt::LetGoBetweenPressAndRelease, UsersAlt::LetGoAfterwards}) {
            SCOPED_TRACE(testing::Message() << "locks " << int(locks) << " Alt " << int(usersAlt));
            lockModifiers(client, locks, true);
            const KeyboardState untouched = keyboardState(client);
            if (usersAlt != UsersAlt::Up)
                driver.pressKey("LALT", physical);
            letManagerCatchUp(client);
            KeyboardState expected = keyboardState(client);
            const xcb_window_t active = activeWindow(client);
            typeAltTab(service, [&] {
                if (usersAlt != UsersAlt::LetGoBetweenPressAndRelease)
                    return;
                driver.releaseKey("LALT", physical);
                expected = untouched;
            });
            // xfwm4 grabs synchronously: the keyboard moves on when it has looked at the key.
            EXPECT_TRUE(waitFor([&] { return keyboardState(client) == expected; }));
            // As with the user's own Tab, a held Alt may keep the switcher until it is let go.
            if (usersAlt == UsersAlt::LetGoAfterwards)
                driver.releaseKey("LALT", physical);
            EXPECT_TRUE(waitFor([&] { return activeWindow(client) != active; }));
            EXPECT_TRUE(waitFor([&] { return isKeyboardFree(client); }));
            EXPECT_FALSE(isAnythingDown(client));
            lockModifiers(client, 0xff, false);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Keyboard, WindowManager, testing::Values("openbox", "xfwm4"),
    [](const auto& manager) { return std::string(manager.param); });

/// The least of a window manager: it has Alt+Tab for itself, opens its switcher, and closes that
/// when Alt is let go. It does nothing before it is asked to work.
class SlowManager {
public:
    SlowManager() {
        const uint32_t redirect = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
        xcb_change_window_attributes(client_, client_.root(), XCB_CW_EVENT_MASK, &redirect);
        takeCombination();
    }

    void takeCombination() {
        xcb_grab_key(
            client_, false, client_.root(), alt, tab_, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        client_.sync();
    }
    void leaveCombination() {
        xcb_ungrab_key(client_, tab_, client_.root(), alt);
        client_.sync();
    }
    void openSwitcher() {
        xcb_grab_keyboard(
            client_, false, client_.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC);
        client_.sync();
    }

    /// Deals with what has happened since, and tells whether that closed the switcher.
    bool work() {
        hasSwitched_ = false;
        client_.sync();
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(client_)})
            handle(*event);
        client_.sync();
        return hasSwitched_;
    }

private:
    void handle(const xcb_generic_event_t& event) {
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
        switch (event.response_type) {
        case XCB_KEY_PRESS:
            if (key.detail == tab_)
                openSwitcher();
            break;
        case XCB_KEY_RELEASE:
            if (key.detail != alt_)
                break;
            xcb_ungrab_keyboard(client_, XCB_CURRENT_TIME);
            hasSwitched_ = true;
            break;
        case XCB_CONFIGURE_REQUEST: {
            const auto& request = reinterpret_cast<const xcb_configure_request_event_t&>(event);
            const uint32_t width = request.width;
            xcb_configure_window(client_, request.window, XCB_CONFIG_WINDOW_WIDTH, &width);
            break;
        }
        }
    }

    XClient client_;
    Driver driver_;
    uint8_t tab_ = driver_.keycode("TAB");
    uint8_t alt_ = driver_.keycode("LALT");
    bool hasSwitched_ = false;
};

/// A manager whose switcher opens when the combination is typed already.
class LateSwitcher : public OwnDisplay {
protected:
    void expectClosed() {
        manager.work();
        EXPECT_FALSE(isKeyboardFree(client));
        EXPECT_TRUE(waitFor([&] { return manager.work(); }));
        EXPECT_TRUE(isKeyboardFree(client));
        EXPECT_FALSE(isAnythingDown(client));
    }

    XClient client;
    SlowManager manager;
    Service service;
};
TEST_F(LateSwitcher, IsClosed) {
    for (const int milliseconds : {0, 1200}) {
        typeAltTab(service);
        EXPECT_TRUE(waitFor([&] { return isKeyboardFree(client); }));
        const QDeadlineTimer standsStill(milliseconds);
        EXPECT_TRUE(waitFor([&] { return standsStill.hasExpired(); }));
        expectClosed();
    }
    // As when it reads the keyboard map anew just when the combination is typed.
    manager.leaveCombination();
    typeAltTab(service, [&] {
        manager.takeCombination();
        manager.openSwitcher();
    });
    expectClosed();
}

} // namespace
