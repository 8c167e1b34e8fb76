#include "model/ShortcutAction.h"

#include "model/ShortcutButton.h"
#include "support/KeyTexts.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(ShortcutActionTest, DisplayNameFillsTheOnePlaceholder) {
    const test::KeyTexts texts;
    const std::pair<ShortcutAction, QString> cases[] = {
        {LaunchApp{u"Notes"_s, u"com.example.notes"_s}, u"action_desc_launch Notes."_s},
        {OpenUrl{u"https://example.com/%20%1"_s}, u"action_desc_open https://example.com/%20%1."_s},
        {ExecuteShellCommand{u"printf '%1 %2 %L1' \"$1\""_s},
         u"action_desc_execute printf '%1 %2 %L1' \"$1\"."_s},
        {PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"4"_s}, u"action_desc_key Command+Shift+4."_s},
        {PressKeyCombo{{}, u"Escape"_s}, u"action_desc_key Escape."_s},
    };
    for (const auto& [action, expected] : cases)
        EXPECT_EQ(displayName(action), expected);
}

TEST(ShortcutActionTest, AnActionIsItsValuesAndAButtonItsId) {
    const ShortcutAction different[] = {
        LaunchApp{u"a"_s, std::nullopt},
        LaunchApp{u"a"_s, u""_s},
        OpenUrl{u"a"_s},
        ExecuteShellCommand{u"a"_s},
        PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"a"_s},
        PressKeyCombo{{u"Shift"_s, u"Command"_s}, u"a"_s},
    };
    QSet<ShortcutAction> set;
    for (const ShortcutAction& one : different)
        set << one << ShortcutAction(one);
    EXPECT_EQ(set.size(), std::ssize(different));

    const ShortcutButton button(u"a"_s, u"globe"_s, OpenUrl{u"x"_s});
    const ShortcutButton renamed(
        u"b"_s, u"camera"_s, OpenUrl{u"y"_s}, ButtonAlignment::right, button.id());
    const ShortcutButton twin(u"a"_s, u"globe"_s, OpenUrl{u"x"_s});
    EXPECT_EQ((QSet{button, renamed, twin}), (QSet{twin, renamed}));
}

} // namespace
} // namespace velmora
