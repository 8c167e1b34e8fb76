#include "model/ShortcutAction.h"

#include "support/KeyTexts.h"

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
        {PressKeyCombo{{u"Command"_s, u"Option"_s, u"Control"_s, u"Shift"_s, u"Hyper"_s}, u"4"_s},
         u"action_desc_key Super+Alt+Ctrl+Shift+Hyper+4."_s},
        {PressKeyCombo{{u"Control"_s}, {}}, u"action_desc_key Ctrl+."_s},
        {PressKeyCombo{{}, u"Escape"_s}, u"action_desc_key Escape."_s},
    };
    for (const auto& [action, expected] : cases)
        EXPECT_EQ(displayName(action), expected);
}

} // namespace
} // namespace velmora
