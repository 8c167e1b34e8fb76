// What input grants decide, without a display.

#include "foundation/Log.h"
#include "platform/x11/grants/ChordStates.h"
#include "platform/x11/grants/Retries.h"
#include "platform/x11/keyboard/KeyLabels.h"
#include "support/TestDisplay.h"

#include <gmock/gmock.h>
#include <xkbcommon/xkbcommon.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace velmora;

namespace {

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
    const auto keycode = [&](const char* name) {
        return static_cast<xcb_keycode_t>(xkb_keymap_key_by_name(keymap.get(), name));
    };
    const std::tuple<const char*, unsigned, bool, QString> cases[] = {
        {"AC01", 0, false, u"a"_s}, {"AC01", 0, true, u"A"_s},  {"AE01", 1, false, u"&"_s},
        {"AC01", 2, false, u"ф"_s}, {"AC01", 7, false, u"a"_s}, {"AD11", 1, true, u"¨"_s},
        {"KP1", 0, true, u"1"_s},   {"FK05", 0, true, u"F5"_s}, {"KPEN", 0, false, u"Enter"_s},
        {"AE13", 3, false, u"\\"_s}};
    for (const auto& [key, group, shift, label] : cases) {
        EXPECT_EQ(labels.label(keycode(key), group, shift), label) << key << group;
        EXPECT_FALSE(labels.isModifier(keycode(key), group)) << key;
    }
    for (const char* key : {"LFSH", "RTSH", "LCTL", "LALT", "RALT", "LWIN", "CAPS", "NMLK"})
        EXPECT_TRUE(labels.isModifier(keycode(key), 1)) << key;
    EXPECT_EQ(labels.label(0, 0, false), u""_s);
    EXPECT_EQ(KeyLabels().label(38, 0, false), u""_s);
}

TEST(RetriesTest, AskAgainUntilItWorksAndTellTheLogTwice) {
    constexpr std::chrono::milliseconds pauses[] = {1ms, 2ms};
    int tries = 0;
    std::unique_ptr<Retries> retries;
    const auto attempt = [&] {
        if (++tries < 5)
            retries->noteRefusal(u"It"_s);
        else
            retries->noteSuccess();
    };
    testing::internal::CaptureStdout();
    retries = std::make_unique<Retries>(pauses, attempt);
    attempt();
    EXPECT_TRUE(test::waitFor([&] { return tries == 5; }));
    Log::flush();
    EXPECT_EQ(
        testing::internal::GetCapturedStdout(),
        "It is held by another program; trying again\nIt works again\n");
    EXPECT_TRUE(std::ranges::is_sorted(Retries::usualPauses));
    EXPECT_EQ(std::end(Retries::usualPauses)[-1], 10s);
}

} // namespace
