#include "model/ShortcutAction.h"

#include "model/ShortcutButton.h"

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Puts the key itself before the placeholder.
class KeyAndPlaceholder : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        return QString::fromLatin1(key) + u" %1."_s;
    }
};

TEST(ShortcutActionTest, DisplayNameFillsTheOnePlaceholder) {
    KeyAndPlaceholder texts;
    QCoreApplication::installTranslator(&texts);
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
    QCoreApplication::removeTranslator(&texts);
}

TEST(ShortcutActionTest, EqualityAndHashLookAtEveryValue) {
    const ShortcutAction different[] = {
        LaunchApp{u"a"_s, std::nullopt},
        LaunchApp{u"a"_s, u""_s},
        LaunchApp{u"a"_s, u"b"_s},
        OpenUrl{u"a"_s},
        ExecuteShellCommand{u"a"_s},
        PressKeyCombo{{}, u"a"_s},
        PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"a"_s},
        PressKeyCombo{{u"Shift"_s, u"Command"_s}, u"a"_s},
    };
    QSet<size_t> hashes;
    for (const ShortcutAction& one : different) {
        const ShortcutAction copy = one;
        EXPECT_EQ(qHash(copy), qHash(one));
        hashes.insert(qHash(one));
        for (const ShortcutAction& other : different)
            EXPECT_EQ(one == other, &one == &other);
    }
    EXPECT_EQ(hashes.size(), std::ssize(different));
}

TEST(ShortcutButtonTest, IsItsId) {
    const ShortcutButton button(u"a"_s, u"globe"_s, OpenUrl{u"x"_s});
    const ShortcutButton renamed(
        u"b"_s, u"camera"_s, OpenUrl{u"y"_s}, ButtonAlignment::right, button.id());
    const ShortcutButton twin(u"a"_s, u"globe"_s, OpenUrl{u"x"_s});
    EXPECT_EQ(button, renamed);
    EXPECT_EQ(qHash(button), qHash(renamed));
    EXPECT_FALSE(button == twin);
    EXPECT_EQ(button.alignment, ButtonAlignment::left);
}

} // namespace
} // namespace velmora
