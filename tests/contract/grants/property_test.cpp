// Whatever the user, other programs and grants do in whatever order, and whoever is killed in
// between: once the hands are off, no key or button is down and nothing is taken.

#include "X11World.h"
#include "support/TestDisplay.h"

#include <array>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace velmora;
using namespace velmora::test;

namespace {

constexpr std::array inputs{Input::hotKey, Input::mouseButton, Input::everyKey};

/// Another Velmora with all grants, killed without warning.
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
            X11InputGrants grants(*connection, keyboard);
            const auto hotKey = grants.hotKey(optionM, {});
            const auto button = grants.mouseButton(3, {});
            const auto everyKey = grants.everyKey(view, {});
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

/// Whether a newcomer can take everything that grants may have taken.
bool isEverythingFree(const Driver& driver) {
    OtherProgram newcomer;
    return newcomer.takeChord(driver.keycode(keyM.name)) && newcomer.takeButton(2) &&
           newcomer.takeButton(8) && newcomer.takeButton(9) && newcomer.takePointer() &&
           newcomer.takeKeyboard();
}

TEST(GrantsAtRandom, LeaveNothingDownAndNothingTaken) {
    constexpr unsigned seeds = 12;
    constexpr int steps = 80;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto pick = [&random](size_t count) { return static_cast<int>(random() % count); };
        X11World world;
        QWidget& view = world.focusedView();
        {
            std::array<std::unique_ptr<InputGrant>, 3> grants;
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
                case 4:
                case 5: {
                    const auto which = static_cast<size_t>(pick(inputs.size()));
                    if (std::exchange(grants[which], nullptr))
                        break;
                    grants[which] = inputs[which] == Input::everyKey
                                        ? world.grants().everyKey(view, [](const KeyInput&) {})
                                        : world.make(inputs[which]);
                    break;
                }
                case 6:
                    if (pick(2))
                        world.otherTakes({inputs[static_cast<size_t>(pick(inputs.size()))]});
                    else
                        world.otherTakes({});
                    break;
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
        world.otherTakes({});
        EXPECT_TRUE(waitFor([&] { return isEverythingFree(world.driver); }));
        const KeyboardState state = keyboardState(world.client);
        EXPECT_EQ(state.base | state.latched | state.locked, 0);
    }
}

} // namespace
