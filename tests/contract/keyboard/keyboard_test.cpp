// What another client sees of the keys that KeyboardEvents posts, and what the user's own keyboard
// is like afterwards.

#include "platform/KeyboardEvents.h"
#include "platform/x11/KeyPositions.h"
#include "platform/x11/X11Session.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTimer>
#include <csignal>
#include <gmock/gmock.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

constexpr auto physical = Driver::Keyboard::Physical;
constexpr uint16_t shift = 1, lock = 2, control = 4, alt = 8, numLock = 16, super = 64;

/// A key event as the witness sees it; modifiers as X numbers them.
struct Seen {
    uint8_t type;
    uint8_t keycode;
    uint16_t state;
    bool operator==(const Seen&) const = default;
};
void PrintTo(const Seen& seen, std::ostream* out) {
    *out << (seen.type == XCB_KEY_PRESS ? "press " : "release ") << int(seen.keycode) << " with 0x"
         << std::hex << seen.state << std::dec;
}

/// The modifier bits that event flags ask for.
uint16_t maskOf(EventFlags flags) {
    return (flags & kCGEventFlagMaskShift ? shift : 0) |
           (flags & kCGEventFlagMaskControl ? control : 0) |
           (flags & kCGEventFlagMaskAlternate ? alt : 0) |
           (flags & kCGEventFlagMaskCommand ? super : 0);
}

/// A key by its code and by the name XKB has for its position.
struct Key {
    KeyCode code;
    QByteArray position;
};

/// One running service, as the program has it.
struct Service {
    std::unique_ptr<X11Session> session = X11Session::create();
    KeyboardEvents& events = session->keyboardEvents();
    std::unique_ptr<EventSource> source =
        events.createEventSource(EventSourceState::combinedSessionState);

    bool post(KeyCode code, bool keyDown, EventFlags flags) {
        auto event = events.createKeyboardEvent(*source, code, keyDown);
        if (!event)
            return false;
        event->setFlags(flags);
        events.post(EventTapLocation::sessionEventTap, *event);
        return true;
    }
    void tap(KeyCode code, EventFlags flags) {
        EXPECT_TRUE(post(code, true, flags));
        EXPECT_TRUE(post(code, false, flags));
    }
    /// The flags that a new event starts with. The answer comes after all that was posted.
    EventFlags currentFlags() { return events.createKeyboardEvent(*source, 0, true)->flags; }
};

class Keyboard : public testing::Test {
protected:
    ~Keyboard() override {
        service.currentFlags();
        EXPECT_FALSE(isAnythingDown(client));
        EXPECT_EQ(keyboardState(client), before);
        lockModifiers(client, 0xff, false);
        lockGroup(client, 0);
    }

    /// The keys the witness got since it was last asked, once all that was posted has come.
    std::vector<Seen> seen() {
        service.currentFlags();
        std::vector<Seen> seen;
        for (const Witness::Event& event : witness.keys())
            seen.push_back({event.type, event.detail, event.state});
        witness.clear();
        return seen;
    }
    std::vector<Seen> pressAndRelease(const Key& key, uint16_t state) const {
        const uint8_t keycode = driver.keycode(key.position);
        return {{XCB_KEY_PRESS, keycode, state}, {XCB_KEY_RELEASE, keycode, state}};
    }

    XClient client;
    Witness witness;
    Driver driver;
    Service service;
    KeyboardState before = keyboardState(client);
};

const std::vector<Key> keys = {{0, "AC01"},  {6, "AB01"},  {12, "AD01"}, {18, "AE01"},
                               {29, "AE10"}, {36, "RTRN"}, {46, "AB07"}, {119, "END"}};

TEST_F(Keyboard, PressesThePositionWithExactlyTheFlagsOnEveryLayout) {
    for (const QString& layout : {u"us"_s, u"fr"_s, u"jp"_s, u"ru"_s, u"dvorak"_s}) {
        SCOPED_TRACE(layout.toStdString());
        setLayout(layout);
        for (const Key& key : keys) {
            for (unsigned flags = 0; flags < 16; ++flags) {
                service.tap(key.code, EventFlags(flags) << 17);
                EXPECT_THAT(
                    seen(),
                    ElementsAreArray(pressAndRelease(key, maskOf(EventFlags(flags) << 17))));
            }
        }
    }
    setLayout(u"us"_s);
}

TEST_F(Keyboard, FollowsAKeyboardWhosePositionsMove) {
    const auto setKeycodes = [](const QString& keycodes) {
        QProcess process;
        process.start(u"setxkbmap"_s, {u"-keycodes"_s, keycodes});
        ASSERT_TRUE(process.waitForFinished());
    };
    const auto pressed = [this] {
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
        service.tap(123, 0);
        const auto events = seen();
        return events.empty() ? 0 : events.front().keycode;
    };
    const uint8_t usual = driver.keycode("LEFT");
    setKeycodes(u"xfree86"_s);
    const uint8_t moved = Driver().keycode("LEFT");
    EXPECT_NE(moved, usual);
    EXPECT_TRUE(waitFor([&] { return pressed() == moved; }));
    setKeycodes(u"evdev"_s);
    EXPECT_TRUE(waitFor([&] { return pressed() == usual; }));
}

TEST_F(Keyboard, NamesEveryKeyOfThisKeyboardOnce) {
    const KeyPositions positions = KeyPositions::read(client);
    std::set<uint8_t> keycodes;
    int codes = 0;
    for (KeyCode code = 0; code < 128; ++code) {
        if (const auto keycode = positions.keycode(code)) {
            ++codes;
            keycodes.insert(*keycode);
            EXPECT_EQ(positions.position(*keycode), code);
        }
    }
    EXPECT_EQ(keycodes.size(), codes);
    EXPECT_GE(codes, 104); // a full ANSI keyboard
}

TEST_F(Keyboard, FindsTheModifierBitsOfAnUnusualMap) {
    const auto xmodmap = [](const QStringList& changes) {
        QProcess process;
        process.start(u"xmodmap"_s, changes);
        ASSERT_TRUE(process.waitForFinished());
        ASSERT_EQ(process.exitCode(), 0);
    };
    // Super changes places with the empty Mod3.
    xmodmap({u"-e"_s, u"clear mod4"_s, u"-e"_s, u"add mod3 = Super_L Super_R"_s});
    Service other;
    for (const bool keyDown : {true, false})
        EXPECT_TRUE(other.post(8, keyDown, kCGEventFlagMaskCommand));
    other.currentFlags();
    constexpr uint16_t mod3 = 32;
    EXPECT_THAT(seen(), ElementsAreArray(pressAndRelease({8, "AB03"}, mod3)));
    xmodmap({u"-e"_s, u"clear mod3"_s, u"-e"_s, u"add mod4 = Super_L Super_R"_s});
}

TEST_F(Keyboard, LeavesLocksAndTheGroupAsTheyWere) {
    setLayout(u"us,ru"_s);
    for (const uint8_t locks : {0, int(lock), int(numLock), lock | numLock}) {
        for (const uint8_t group : {0, 1}) {
            lockModifiers(client, 0xff, false);
            lockModifiers(client, locks, true);
            lockGroup(client, group);
            before = keyboardState(client);
            for (const EventFlags flags : {EventFlags(0), kCGEventFlagMaskCommand}) {
                service.tap(8, flags);
                EXPECT_THAT(
                    seen(), ElementsAreArray(pressAndRelease(
                                {8, "AB03"}, static_cast<uint16_t>(maskOf(flags) | group << 13))));
                EXPECT_EQ(keyboardState(client), before);
            }
        }
    }
    lockModifiers(client, 0xff, false);
    lockGroup(client, 0);
    setLayout(u"us"_s);
    before = keyboardState(client);
}

/// When the user lets go of the modifier keys.
enum class LetGo { BetweenPressAndRelease, Afterwards };

TEST_F(Keyboard, KeepsHeldModifiersOutAndGivesThemBack) {
    struct Case {
        std::vector<QByteArray> held;
        uint8_t mask;
    };
    const Case cases[] = {
        {{"LALT"}, alt}, {{"LFSH"}, shift}, {{"LALT", "LFSH"}, alt | shift}, {{"RCTL"}, control}};
    for (const Case& userHolds : cases) {
        for (const LetGo letGo : {LetGo::BetweenPressAndRelease, LetGo::Afterwards}) {
            for (const EventFlags flags :
                 {EventFlags(0), kCGEventFlagMaskControl | kCGEventFlagMaskShift}) {
                for (const auto& key : userHolds.held)
                    driver.pressKey(key, physical);
                EXPECT_EQ(maskOf(service.currentFlags()), userHolds.mask);
                witness.clear();

                EXPECT_TRUE(service.post(8, true, flags));
                service.currentFlags();
                EXPECT_EQ(keyboardState(client).base, userHolds.mask);
                if (letGo == LetGo::BetweenPressAndRelease) {
                    for (const auto& key : userHolds.held)
                        driver.releaseKey(key, physical);
                }
                EXPECT_TRUE(service.post(8, false, flags));
                service.currentFlags();
                EXPECT_EQ(
                    keyboardState(client).base, letGo == LetGo::Afterwards ? userHolds.mask : 0);

                // The modifier keys themselves come and go around the key.
                auto events = seen();
                std::erase_if(
                    events, [&](const Seen& e) { return e.keycode != driver.keycode("AB03"); });
                EXPECT_THAT(events, ElementsAreArray(pressAndRelease({8, "AB03"}, maskOf(flags))));

                if (letGo == LetGo::Afterwards) {
                    for (const auto& key : userHolds.held)
                        driver.releaseKey(key, physical);
                }
                EXPECT_FALSE(isAnythingDown(client));
                EXPECT_EQ(keyboardState(client), before);
            }
        }
    }
    witness.clear();
}

TEST_F(Keyboard, AHeldLockKeyIsNotSwitchedOver) {
    driver.pressKey("CAPS", physical);
    const uint8_t locked = keyboardState(client).locked;
    witness.clear();
    service.tap(8, 0);
    auto events = seen();
    std::erase_if(events, [&](const Seen& e) { return e.keycode != driver.keycode("AB03"); });
    EXPECT_THAT(events, ElementsAreArray(pressAndRelease({8, "AB03"}, 0)));
    driver.releaseKey("CAPS", physical);
    EXPECT_EQ(keyboardState(client).locked, locked);
    lockModifiers(client, 0xff, false);
}

TEST_F(Keyboard, AKeyThatIsHeldAlreadyIsPressedAnew) {
    driver.pressKey("AB07", physical);
    witness.clear();
    service.tap(46, kCGEventFlagMaskControl);
    const uint8_t m = driver.keycode("AB07");
    EXPECT_THAT(
        seen(), ElementsAre(
                    Seen{XCB_KEY_RELEASE, m, control}, Seen{XCB_KEY_PRESS, m, control},
                    Seen{XCB_KEY_RELEASE, m, control}));
    driver.releaseKey("AB07", physical);
}

TEST_F(Keyboard, UnknownKeysGiveNoEvent) {
    for (const KeyCode code : {52, 127, 128, 200, 0xffff})
        EXPECT_FALSE(service.post(code, true, 0)) << code;
    // An event made by hand instead.
    service.events.post(EventTapLocation::sessionEventTap, {0xffff, true, 0});
    EXPECT_THAT(seen(), IsEmpty());
}

/// How many services on this display are watched over. A watcher that a test before left no time to
/// start finds its window's number taken by a later service, and watches over that one as well.
qsizetype watchedServices() {
    std::set<QByteArray> services;
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        const auto read = [&](const QString& name) {
            QFile file(u"/proc/"_s + process + name);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        if (read(u"/comm"_s).startsWith("velmora-key-wat") &&
            read(u"/environ"_s).split('\0').contains("DISPLAY=" + qgetenv("DISPLAY")))
            services.insert(read(u"/cmdline"_s));
    }
    return qsizetype(services.size());
}

TEST_F(Keyboard, TheKeysOfAKilledProcessAreLetGoAndNoWatcherStays) {
    EXPECT_TRUE(waitFor([] { return watchedServices() == 1; })); // that of the fixture's service
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Service dying;
        dying.post(8, true, kCGEventFlagMaskCommand);
        dying.currentFlags();
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_TRUE(witness.waitForInput(2));
    const uint8_t c = driver.keycode("AB03");
    EXPECT_THAT(seen(), ElementsAre(Seen{XCB_KEY_PRESS, c, super}, Seen{XCB_KEY_RELEASE, c, 0}));
    { const Service ending; }
    EXPECT_TRUE(waitFor([] { return watchedServices() == 1; }));
}

} // namespace
