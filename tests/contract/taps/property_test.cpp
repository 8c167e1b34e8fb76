// Whatever the user, other programs and taps do in whatever order, and whoever is killed in
// between: once the hands are off, no key or button is down and nothing is taken.

#include "World.h"
#include "platform/x11/grants/X11EventTaps.h"
#include "platform/x11/keyboard/X11Keyboard.h"
#include "support/TestDisplay.h"

#include <array>
#include <csignal>
#include <gmock/gmock.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace velmora;
using namespace velmora::test;

namespace {

std::array<EventTapInterest, 3> allInterests(QWidget& view) {
    return {
        TapInterest::Chord{keyM.code, kCGEventFlagMaskAlternate},
        TapInterest::MouseButtons{{2, 3, 4}}, TapInterest::EveryKey{&view}};
}

/// Another Velmora with all taps, killed without warning.
class DoomedProcess {
public:
    explicit DoomedProcess(QWidget& view) {
        int ready[2];
        if (pipe(ready) != 0)
            qFatal("pipe failed");
        process_ = fork();
        if (process_ == 0) {
            const auto connection = X11Connection::open();
            const X11Keyboard keyboard(*connection);
            X11EventTaps taps(*connection, keyboard);
            std::array<TapUnderTest, 3> made;
            const auto interests = allInterests(view);
            for (size_t i = 0; i < made.size(); ++i) {
                made[i].make(taps, interests[i]);
                made[i].tap->setEnabled(true);
            }
            (void)!write(ready[1], "", 1);
            for (;;)
                pause();
        }
        ::close(ready[1]);
        char byte = 0;
        (void)!read(ready[0], &byte, 1);
        ::close(ready[0]);
    }
    ~DoomedProcess() {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    DoomedProcess(const DoomedProcess&) = delete;
    DoomedProcess& operator=(const DoomedProcess&) = delete;

private:
    pid_t process_;
};

/// Whether a newcomer can take everything that taps may have taken.
bool isEverythingFree(const Driver& driver) {
    OtherProgram newcomer;
    return newcomer.takeChord(driver.keycode(keyM.name)) && newcomer.takeButton(2) &&
           newcomer.takeButton(8) && newcomer.takeButton(9) && newcomer.takePointer() &&
           newcomer.takeKeyboard();
}

TEST(TapsAtRandom, LeaveNothingDownAndNothingTaken) {
    constexpr unsigned seeds = 12;
    constexpr int steps = 80;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto pick = [&random](size_t count) { return static_cast<int>(random() % count); };
        World world;
        QWidget& view = world.focusedView();
        const auto interests = allInterests(view);
        {
            std::array<TapUnderTest, 3> taps;
            std::array<std::unique_ptr<OtherProgram>, 3> others;
            std::unique_ptr<DoomedProcess> doomed;
            constexpr std::array keys{"LALT", "LCTL", "LFSH", "AB07", "AC01", "2", "8", "9"};
            std::set<QByteArray> down;
            Driver hands; // lets go of everything first
            for (int step = 0; step < steps; ++step) {
                switch (pick(8)) {
                case 0:
                case 1:
                case 2:
                case 3: {
                    const QByteArray key = keys[static_cast<size_t>(pick(keys.size()))];
                    const bool wasDown = down.erase(key);
                    if (!wasDown)
                        down.insert(key);
                    if (const int button = key.toInt())
                        wasDown ? hands.releaseButton(button) : hands.pressButton(button);
                    else
                        wasDown ? hands.releaseKey(key) : hands.pressKey(key);
                    break;
                }
                case 4: {
                    const auto which = static_cast<size_t>(pick(3));
                    TapUnderTest& tap = taps[which];
                    if (!tap.tap)
                        tap.make(world.taps(), interests[which]);
                    if (pick(4) == 0)
                        tap.tap.reset();
                    else
                        tap.tap->setEnabled(!tap.tap->isEnabled());
                    break;
                }
                case 5:
                    if (taps[1].tap)
                        taps[1].tap->setInterest(
                            TapInterest::MouseButtons{{pick(5), pick(5), pick(5)}});
                    break;
                case 6: {
                    auto& other = others[static_cast<size_t>(pick(3))];
                    if (std::exchange(other, nullptr))
                        break;
                    other = std::make_unique<OtherProgram>();
                    if (pick(2))
                        other->takeChord(world.driver.keycode(keyM.name));
                    else if (pick(2))
                        other->takeButton(8);
                    else
                        other->takeKeyboard();
                    break;
                }
                default:
                    if (doomed)
                        doomed.reset();
                    else
                        doomed = std::make_unique<DoomedProcess>(view);
                }
                if (pick(2))
                    QCoreApplication::processEvents();
            }
        }
        EXPECT_TRUE(waitFor([&] { return isEverythingFree(world.driver); }));
        EXPECT_FALSE(isAnythingDown(world.client));
        EXPECT_FALSE(world.isAnyButtonDown());
        const KeyboardState state = keyboardState(world.client);
        EXPECT_EQ(state.base | state.latched | state.locked, 0);
    }
}

} // namespace
