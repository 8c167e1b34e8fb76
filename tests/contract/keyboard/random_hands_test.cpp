// Combinations typed while the user's own hands are on the keyboard: whatever they press, hold or
// switch over at whatever moment is theirs afterwards, and nothing else is down.

#include "Service.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <array>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <thread>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// Presses and lets go of modifier and lock keys at random on the keyboard itself, nearly as fast
/// as the server takes it.
class Hands {
public:
    explicit Hands(unsigned seed) : random_(seed), thread_([this] { move(); }) {}
    /// Lets go of everything, and gives the locks that were switched over.
    uint8_t stop() {
        stopped_ = true;
        thread_.join();
        return switched_;
    }

private:
    struct Key {
        const char* name;
        uint8_t lock; ///< the modifier that a press switches over
    };
    static constexpr std::array keys{Key{"LALT", 0}, Key{"LFSH", 0}, Key{"RCTL", 0},
                                     Key{"LWIN", 0}, Key{"CAPS", 2}, Key{"NMLK", 16}};

    void move() {
        while (!stopped_) {
            std::this_thread::sleep_for(std::chrono::microseconds(random_() % 400));
            stroke(random_() % keys.size());
        }
        for (const size_t key : std::set(down_))
            stroke(key);
    }
    void stroke(size_t key) {
        if (down_.erase(key)) {
            driver_.releaseKey(keys[key].name, Driver::Keyboard::Physical);
            return;
        }
        down_.insert(key);
        driver_.pressKey(keys[key].name, Driver::Keyboard::Physical);
        switched_ ^= keys[key].lock;
    }

    std::mt19937 random_;
    Driver driver_;
    std::set<size_t> down_;
    uint8_t switched_ = 0;
    std::atomic<bool> stopped_ = false;
    std::thread thread_;
};

class RandomHands : public testing::Test {
protected:
    RandomHands() {
        // A loaded machine may hold a key for longer than it takes to repeat.
        const uint32_t off = XCB_AUTO_REPEAT_MODE_OFF;
        xcb_change_keyboard_control(client, XCB_KB_AUTO_REPEAT_MODE, &off);
    }
    ~RandomHands() override { qputenv("DISPLAY", usualDisplay_); }

    struct Typed {
        uint8_t keycode;
        uint16_t state;
        bool operator==(const Typed&) const = default;
    };

    /// Types ten combinations while the hands move, and gives them; twice each, as press and
    /// release.
    std::vector<Typed> typeTen() {
        constexpr std::pair<KeyCode, const char*> keys[] = {
            {8, "AB03"}, {0, "AC01"}, {46, "AB07"}, {48, "TAB"}};
        std::vector<Typed> typed;
        for (int i = 0; i < 10; ++i) {
            const auto& [code, name] = keys[random() % std::size(keys)];
            const EventFlags flags = EventFlags(random() % 16) << 17;
            for (const bool keyDown : {true, false}) {
                EXPECT_TRUE(service.post(code, keyDown, flags));
                std::this_thread::sleep_for(std::chrono::microseconds(random() % 1000));
                typed.push_back({driver.keycode(name), maskOf(flags)});
            }
        }
        return typed;
    }

    /// Many rounds of typing while the hands move and `disturb`, called at the start of each with
    /// its number, does something as well; `check` gets what was typed.
    void type(
        int rounds, const std::function<void(int round)>& disturb,
        const std::function<void(const std::vector<Typed>&)>& check) {
        for (int round = 0; round < rounds; ++round) {
            auto locks = static_cast<uint8_t>(random() % 2 ? 16 : 0); // Num Lock
            lockModifiers(client, 0xff, false);
            lockModifiers(client, locks, true);
            disturb(round);
            Hands hands(static_cast<unsigned>(random()));
            const auto typed = typeTen();
            locks ^= hands.stop();
            EXPECT_TRUE(waitFor([&] { return !isAnythingDown(client) && isKeyboardFree(client); }))
                << round;
            const KeyboardState state = keyboardState(client);
            EXPECT_EQ(state.base, 0) << round;
            EXPECT_EQ(state.locked, locks) << round;
            check(typed);
            if (HasFailure())
                return;
        }
    }

private:
    const QByteArray usualDisplay_ = qgetenv("DISPLAY");

protected:
    TestDisplay display;
    XClient client;
    Driver driver;
    Service service;
    std::mt19937 random{std::random_device()()};
};

TEST_F(RandomHands, KeepWhatIsTheirs) {
    Witness witness;
    type(
        100, [&](int) { witness.clear(); },
        [&](const std::vector<Typed>& typed) {
            std::set<uint8_t> typedKeys;
            for (const Typed& key : typed)
                typedKeys.insert(key.keycode);
            std::vector<Typed> seen;
            std::array<int, 256> down{};
            for (const Witness::Event& event : witness.keys()) {
                down[event.detail] += event.type == XCB_KEY_PRESS ? 1 : -1;
                if (typedKeys.contains(event.detail))
                    seen.push_back({event.detail, event.state});
            }
            EXPECT_EQ(seen, typed) << "with exactly their modifiers";
            EXPECT_TRUE(std::ranges::all_of(down, [](int count) { return count == 0; }))
                << "as many releases as presses of each key";
        });
}

TEST_F(RandomHands, AreNeverStuckAmongLayoutsAndWindowManagers) {
    QProcess* last = nullptr;
    type(
        40,
        [&](int round) {
            // The window manager stays.
            if (round % 4 != 1 && last) {
                EXPECT_TRUE(waitFor([&] { return last->state() == QProcess::NotRunning; }));
            }
            if (round % 4 == 0)
                last = &display.start(u"openbox"_s, {u"--replace"_s});
            else
                last = &display.start(
                    u"setxkbmap"_s, {u"-layout"_s, round % 4 == 3 ? u"us"_s : u"fr,ru"_s});
        },
        [](const auto&) {});
}

} // namespace
