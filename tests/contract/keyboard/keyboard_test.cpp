// What another client sees of the keys that KeyboardEvents posts, and what the user's own keyboard
// is like afterwards.

#include "Service.h"
#include "platform/x11/keyboard/KeyPositions.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/FakeKeyboardEvents.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QDir>
#include <QFile>
#include <QProcess>
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
constexpr uint16_t control = 4, super = 64;

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

/// A key by its code and by the name XKB has for its position.
struct Key {
    KeyCode code;
    QByteArray position;
};

class Keyboard : public testing::Test {
protected:
    ~Keyboard() override {
        EXPECT_FALSE(isAnythingDown(client));
        EXPECT_EQ(keyboardState(client), before);
        lockModifiers(client, 0xff, false);
        lockGroup(client, 0);
    }

    /// The keys the witness got since it was last asked, once all that was posted has come.
    std::vector<Seen> seen() {
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

/// What the session and the fake promise both.
class KeyboardContract : public Keyboard, public testing::WithParamInterface<bool> {
protected:
    std::vector<Seen> typed() {
        std::vector<Seen> typed = seen();
        const auto group = static_cast<uint16_t>(keyboardState(client).group << 13);
        for (const KeyboardEvent& event : std::exchange(fake.posted, {})) {
            const auto key = std::ranges::find(keys, event.keyCode, &Key::code);
            typed.push_back(
                {uint8_t(event.keyDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE),
                 key == keys.end() ? uint8_t(0) : driver.keycode(key->position),
                 static_cast<uint16_t>(maskOf(event.flags) | group)});
        }
        return typed;
    }

    FakeKeyboardEvents fake;
    Service either{GetParam() ? &fake : nullptr};
};
INSTANTIATE_TEST_SUITE_P(Layers, KeyboardContract, testing::Bool(), [](const auto& isFake) {
    return std::string(isFake.param ? "fake" : "x11");
});

TEST_P(KeyboardContract, PressesThePositionWithExactlyTheFlagsInEveryLayout) {
    const std::pair<QString, uint8_t> layouts[] = {
        {u"us"_s, 0}, {u"fr"_s, 0}, {u"jp"_s, 0}, {u"us,ru"_s, 1}, {u"dvorak"_s, 0}};
    for (const auto& [layout, group] : layouts) {
        SCOPED_TRACE(layout.toStdString());
        setLayout(layout);
        lockGroup(client, group);
        const KeyboardState untouched = keyboardState(client);
        for (const Key& key : keys) {
            for (EventFlags flags = 0; flags < 16 << 17; flags += 1 << 17) {
                either.tap(key.code, flags);
                EXPECT_THAT(
                    typed(), ElementsAreArray(pressAndRelease(
                                 key, static_cast<uint16_t>(maskOf(flags) | group << 13))));
            }
        }
        EXPECT_EQ(keyboardState(client), untouched);
    }
    lockGroup(client, 0);
    setLayout(u"us"_s);
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
        EXPECT_EQ(QProcess::execute(u"xmodmap"_s, changes), 0);
    };
    // Super changes places with the empty Mod3.
    xmodmap({u"-e"_s, u"clear mod4"_s, u"-e"_s, u"add mod3 = Super_L Super_R"_s});
    Service other;
    for (const bool keyDown : {true, false})
        EXPECT_TRUE(other.post(8, keyDown, kCGEventFlagMaskCommand));
    constexpr uint16_t mod3 = 32;
    EXPECT_THAT(seen(), ElementsAreArray(pressAndRelease({8, "AB03"}, mod3)));
    xmodmap({u"-e"_s, u"clear mod3"_s, u"-e"_s, u"add mod4 = Super_L Super_R"_s});
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

TEST_P(KeyboardContract, UnknownKeysGiveNoEvent) {
    for (const KeyCode code : {52, 127, 128, 200, 0xffff})
        EXPECT_FALSE(either.post(code, true, 0)) << code;
    // An event made by hand instead.
    either.events.post({0xffff, true, 0});
    EXPECT_THAT(typed(), IsEmpty());
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
    service.tap(8, 0);
    EXPECT_TRUE(waitFor([] { return watchedServices() == 1; })); // that of the fixture's service
    witness.clear();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Service dying;
        dying.post(8, true, kCGEventFlagMaskCommand);
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_TRUE(witness.waitForInput(2));
    const uint8_t c = driver.keycode("AB03");
    EXPECT_THAT(seen(), ElementsAre(Seen{XCB_KEY_PRESS, c, super}, Seen{XCB_KEY_RELEASE, c, 0}));
    Service().tap(8, 0);
    EXPECT_TRUE(waitFor([] { return watchedServices() == 1; }));
}

} // namespace
