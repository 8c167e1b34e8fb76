// What the action form makes of its fields, and of a stored action.

#include "settings/ActionFields.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

const ShortcutAction actions[] = {
    LaunchApp{u"Safari"_s, u"com.apple.Safari"_s},
    LaunchApp{u"Safari"_s, std::nullopt},
    OpenUrl{u" "_s},
    ExecuteShellCommand{u"print %1\n"_s},
    PressKeyCombo{{u"Shift"_s, u"Command"_s}, u"N"_s},
    PressKeyCombo{{u"Command"_s}, {}},
    PressKeyCombo{{}, u"Return"_s},
};

TEST(ActionFields, GiveBackTheActionTheyWereFilledWith) {
    for (const ShortcutAction& action : actions) {
        const ActionFields fields(action);
        EXPECT_EQ(fields.action(), action) << action.index();
        EXPECT_TRUE(fields.isComplete()) << action.index();
    }
}

TEST(ActionFields, OnlyTheChosenTypeCounts) {
    for (const ShortcutAction& action : actions) {
        ActionFields fields(action);
        const ActionType own = fields.type;
        for (int type = 0; type < actionTypeCount; ++type) {
            fields.type = static_cast<ActionType>(type);
            EXPECT_EQ(fields.isComplete(), fields.type == own) << action.index() << type;
            EXPECT_EQ(fields.action().index(), size_t(type));
        }
        fields.type = own;
        EXPECT_EQ(fields.action(), action) << "what was typed is there again";
    }
    ActionFields fields(ShortcutAction(OpenUrl{u"x:"_s}));
    fields.type = ActionType::launchApp;
    fields.appName = u"Mail"_s;
    EXPECT_EQ(fields.action(), ShortcutAction(LaunchApp{u"Mail"_s, std::nullopt}));
}

} // namespace
