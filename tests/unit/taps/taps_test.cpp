// The decisions of the event taps, without a display.

#include "foundation/Log.h"
#include "platform/x11/ChordStates.h"
#include "platform/x11/KeyLabels.h"
#include "platform/x11/MouseButtonNumbers.h"
#include "platform/x11/X11EventTap.h"
#include "support/TestDisplay.h"

#include <QElapsedTimer>
#include <gmock/gmock.h>
#include <limits>
#include <xkbcommon/xkbcommon.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

TEST(MouseButtonNumbers, LeaveOutWheelsAndWhatXCannotExpress) {
    using Limits = std::numeric_limits<std::int64_t>;
    const std::pair<std::int64_t, int> cases[] = {{2, 2}, {3, 8}, {4, 9}, {5, 10}, {250, 255}};
    for (const auto& [number, xButton] : cases) {
        EXPECT_EQ(xButtonFromNumber(number), xButton);
        EXPECT_EQ(numberFromXButton(static_cast<xcb_button_t>(xButton)), number);
    }
    for (const std::int64_t number : {Limits::min(), -1L, 0L, 1L, 251L, 256L + 3, Limits::max()})
        EXPECT_FALSE(xButtonFromNumber(number)) << number;
}

TEST(ChordStates, OnlyLocksKeepAChordPlain) {
    const ModifierMap usual;
    const auto isPlain = [&](std::uint32_t state) {
        return isPlainChord(usual, kCGEventFlagMaskAlternate, state);
    };
    for (const std::uint32_t locks : {0x00, 0x02, 0x10, 0x20, 0x80, 0xb2})
        EXPECT_TRUE(isPlain(0x08 | locks)) << locks;
    for (const std::uint32_t others : {0x01, 0x04, 0x40, 0x45})
        EXPECT_FALSE(isPlain(0x08 | others)) << others;
}

TEST(KeyLabels, NameWhatAKeyTypesWithModifiersButShiftIgnored) {
    const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
    const xkb_rule_names names{"evdev", "pc105", "us,fr,ru,jp", ",,,", ""};
    const std::unique_ptr<xkb_keymap, decltype(&xkb_keymap_unref)> keymap(
        xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS),
        &xkb_keymap_unref);
    ASSERT_TRUE(keymap);
    const KeyLabels labels(keymap.get());
    struct Case {
        const char* key;
        unsigned group;
        bool shift;
        QString label;
    };
    for (const Case& c : std::vector<Case>{
             {"AC01", 0, false, u"a"_s},
             {"AC01", 0, true, u"A"_s},
             {"AE01", 1, false, u"&"_s},
             {"AC01", 2, false, u"ф"_s},
             {"AC01", 7, false, u"a"_s},
             {"AD11", 1, true, u"¨"_s},
             {"KP1", 0, true, u"1"_s},
             {"FK05", 0, true, u"F5"_s},
             {"KPEN", 0, false, u"Enter"_s},
             {"AE13", 3, false, u"\\"_s},
         }) {
        const auto keycode =
            static_cast<xcb_keycode_t>(xkb_keymap_key_by_name(keymap.get(), c.key));
        EXPECT_EQ(labels.label(keycode, c.group, c.shift), c.label) << c.key << c.group;
        EXPECT_FALSE(labels.isModifier(keycode, c.group)) << c.key;
    }
    for (const char* key : {"LFSH", "RTSH", "LCTL", "LALT", "RALT", "LWIN", "CAPS", "NMLK"})
        EXPECT_TRUE(labels.isModifier(
            static_cast<xcb_keycode_t>(xkb_keymap_key_by_name(keymap.get(), key)), 1))
            << key;
    EXPECT_EQ(labels.label(0, 0, false), u""_s);
    EXPECT_EQ(KeyLabels().label(38, 0, false), u""_s);
}

/// A grab whose answers the test sets.
struct ScriptedGrab final : X11Grab {
    struct Script {
        bool free = true;
        int tries = 0;
        int alive = 0;
        X11Grab::Sink sink;
    };
    explicit ScriptedGrab(Script& newScript, Sink sink) : script(newScript) {
        ++script.alive;
        script.sink = std::move(sink);
    }
    ~ScriptedGrab() override { --script.alive; }
    bool obtain() override {
        ++script.tries;
        return script.free;
    }
    bool adopt(const EventTapInterest& interest) override {
        return std::holds_alternative<TapInterest::Chord>(interest);
    }
    QString refusedName() const override { return u"X"_s; }
    std::span<const std::chrono::milliseconds> pauses() const override {
        static constexpr std::chrono::milliseconds pauses[] = {20ms, 40ms};
        return pauses;
    }
    bool waitsForItsTurn() const override { return false; }

    Script& script;
};

class Tap : public testing::Test {
protected:
    void make(EventTaps::Handler handler) {
        tap = std::make_unique<X11EventTap>(
            [this](const auto&, X11Grab::Sink sink) {
                return std::make_unique<ScriptedGrab>(script, std::move(sink));
            },
            eventMaskBit(EventType::keyDown), TapInterest::Chord{}, std::move(handler));
    }
    EventTaps::Handler reenabling() {
        return [this](EventType type, const TapEvent& event) {
            types.push_back(type);
            if (type == EventType::tapDisabledByUserInput)
                tap->setEnabled(true);
            return std::optional(event);
        };
    }

    ScriptedGrab::Script script;
    std::unique_ptr<X11EventTap> tap;
    std::vector<EventType> types;
};

TEST_F(Tap, AsksAgainAfterGrowingPausesWhileItsHandlerWantsIt) {
    testing::internal::CaptureStdout();
    make(reenabling());
    script.free = false;
    QElapsedTimer clock;
    clock.start();
    tap->setEnabled(true);
    EXPECT_FALSE(tap->isEnabled());
    EXPECT_TRUE(types.empty()) << "told only in a later turn";
    ASSERT_TRUE(waitFor([this] { return script.tries == 3; }));
    EXPECT_GE(clock.elapsed(), 55);
    script.free = true;
    ASSERT_TRUE(waitFor([this] { return script.tries == 4; }));
    EXPECT_TRUE(tap->isEnabled());
    EXPECT_THAT(types, testing::Each(EventType::tapDisabledByUserInput));
    EXPECT_EQ(types.size(), 3U);
    Log::flush();
    EXPECT_EQ(
        testing::internal::GetCapturedStdout(),
        "X is held by another program; trying again\nX works again\n");
}

TEST_F(Tap, StaysOffWhenItsHandlerLeavesItOff) {
    make([](EventType, const TapEvent& event) { return std::optional(event); });
    script.free = false;
    tap->setEnabled(true);
    ASSERT_TRUE(waitFor([this] { return script.alive == 0; }));
    EXPECT_FALSE(tap->isEnabled());
    script.free = true;
    tap->setEnabled(true);
    EXPECT_TRUE(tap->isEnabled());
    EXPECT_EQ(script.tries, 2) << "a fresh start asks at once";
}

TEST_F(Tap, MayBeDestroyedByItsHandler) {
    make([this](EventType, const TapEvent&) -> std::optional<TapEvent> {
        tap.reset();
        return std::nullopt;
    });
    tap->setEnabled(true);
    script.sink.event({.type = EventType::keyDown});
    EXPECT_EQ(script.alive, 0);

    make([this](EventType, const TapEvent& event) {
        tap.reset();
        return std::optional(event);
    });
    script.free = false;
    tap->setEnabled(true);
    EXPECT_TRUE(waitFor([this] { return script.alive == 0; }));
}

} // namespace
