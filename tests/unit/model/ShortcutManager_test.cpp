#include "model/ShortcutManager.h"

#include "foundation/UserDefaults.h"
#include "model/StoredForm.h"
#include "support/KeyTexts.h"
#include "support/LogCapture.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

ShortcutButton named(const QString& title) {
    return {title, u"globe"_s, OpenUrl{title}};
}

class ShortcutManagerTest : public testing::Test {
protected:
    void store(const QByteArray& bytes) { defaults_.setData(u"SavedShortcuts"_s, bytes); }
    std::optional<QByteArray> stored() const { return defaults_.data(u"SavedShortcuts"_s); }

    void storeTitles(const QString& titles) {
        QList<ShortcutButton> buttons;
        for (const QChar title : titles)
            buttons << named(title);
        store(encodedList(buttons));
    }

    static QString titles(const ShortcutManager& manager) {
        QString all;
        for (const ShortcutButton& button : manager.shortcuts())
            all += button.title;
        return all;
    }

    const QTemporaryDir root_;
    UserDefaults defaults_{root_.path() + u"/velmora.conf"_s};
    EditHistory history_;
};

TEST_F(ShortcutManagerTest, FirstStartMakesTheFourDefaults) {
    const ShortcutManager manager(defaults_, history_);
    QByteArray json = encodedList(manager.shortcuts());
    EXPECT_EQ(stored(), json);
    for (const ShortcutButton& button : manager.shortcuts()) {
        EXPECT_EQ(manager.shortcuts().count(button), 1) << "an id of its own";
        json.replace(button.id().toString(QUuid::WithoutBraces).toUpper().toUtf8(), "");
    }
    EXPECT_EQ(
        json,
        R"([{"id":"","title":"Safari","icon":"safari","action":{"launchApp":{"name":"Safari",)"
        R"("bundleId":"com.apple.Safari"}},"alignment":"left"},)"
        R"({"id":"","title":"Finder","icon":"folder","action":{"launchApp":{"name":"Finder",)"
        R"("bundleId":"com.apple.finder"}},"alignment":"left"},)"
        R"({"id":"","title":"Google","icon":"globe","action":{"openURL":{)"
        R"("url":"https://www.google.com/"}},"alignment":"right"},)"
        R"({"id":"","title":"スクショ","icon":"camera","action":{"executeShellCommand":{)"
        R"("command":"screencapture -i ~/Desktop/screenshot.png"}},"alignment":"right"}])");
}

// Each time anew, with what is wrong and a copy of what does not decode.
TEST_F(ShortcutManagerTest, NothingUsableBringsTheDefaultsBack) {
    QByteArray oneBadOfTwo = encodedList(QList{named(u"a"_s), named(u"b"_s)});
    oneBadOfTwo.replace(oneBadOfTwo.lastIndexOf("openURL"), 7, "openUrl");
    const struct {
        QByteArray bytes;
        QString told = {}; ///< how the line in the log goes on
    } cases[] = {
        {"[]"},
        {""},
        {oneBadOfTwo, u"/Index 1/action: Invalid number of keys found, expected one."_s},
        {"\x01\xff\0]"_ba, u": The data is not valid JSON"_s},
        {oneBadOfTwo}, // kept already
        {oneBadOfTwo + ' ', u"/Index 1/action: Invalid number of keys found, expected one."_s},
    };
    const QString copyKey = u"SavedShortcuts.unreadable"_s;
    QStringList copies{copyKey, copyKey + u"-2"_s, copyKey + u"-3"_s};
    for (const auto& [bytes, told] : cases) {
        SCOPED_TRACE(bytes.constData());
        const test::LogCapture log;
        store(bytes);
        const ShortcutManager manager(defaults_, history_);
        EXPECT_EQ(manager.shortcuts().size(), 4);
        EXPECT_EQ(stored(), encodedList(manager.shortcuts()));
        ASSERT_EQ(log.lines().size(), told.isEmpty() ? 0 : 1);
        if (!told.isEmpty()) {
            EXPECT_TRUE(log.lines()[0].startsWith(u"⚠️ SavedShortcuts"_s + told));
            EXPECT_EQ(defaults_.data(copies.takeFirst()), bytes);
        }
    }
    EXPECT_EQ(copies, QStringList());

    // Another hand, while the list is in use.
    ShortcutManager manager(defaults_, history_);
    UserDefaults(root_.path() + u"/velmora.conf"_s).setData(u"SavedShortcuts"_s, "[broken"_ba);
    manager.removeShortcut(0);
    EXPECT_EQ(defaults_.data(copyKey + u"-4"_s), "[broken"_ba);
    EXPECT_EQ(stored(), encodedList(manager.shortcuts()));
    const QByteArray others = encodedList(QList{named(u"o"_s)});
    UserDefaults(root_.path() + u"/velmora.conf"_s).setData(u"SavedShortcuts"_s, others);
    history_.undo();
    EXPECT_EQ(defaults_.data(u"SavedShortcuts.replaced"_s), others);
    EXPECT_EQ(stored(), encodedList(manager.shortcuts()));
}

TEST_F(ShortcutManagerTest, OperationsAnnounceChangeAndSave) {
    const test::KeyTexts texts;
    struct Case {
        const char* name;
        std::function<void(ShortcutManager&)> operation;
        QString after;
        QStringList seenBefore; ///< the titles at each announcement
        QString step = {};      ///< what the history calls it
    };
    const ShortcutButton other = named(u"X"_s);
    const auto move = [](qsizetype source, qsizetype destination) {
        return [=](ShortcutManager& manager) { manager.moveShortcut(source, destination); };
    };
    const Case cases[] = {
        {"add",
         [](auto& m) { m.addShortcut(named(u"E"_s)); },
         u"ABCDE"_s,
         {u"ABCD"_s},
         u"edit_add_format E."_s},
        {"remove",
         [](auto& m) { m.removeShortcut(3); },
         u"ABC"_s,
         {u"ABCD"_s},
         u"edit_remove_format D."_s},
        {"update",
         [&](auto& m) { m.updateShortcut(0, other); },
         u"XBCD"_s,
         {u"ABCD"_s},
         u"edit_change_format A."_s},
        {"0 to 2", move(0, 2), u"BACD"_s, {u"ABCD"_s, u"BCD"_s}, u"edit_move_format A."_s},
        {"0 to end", move(0, 4), u"BCDA"_s, {u"ABCD"_s, u"BCD"_s}, u"edit_move_format A."_s},
        {"3 to 0", move(3, 0), u"DABC"_s, {u"ABCD"_s, u"ABC"_s}, u"edit_move_format D."_s},
        {"1 to 2", move(1, 2), u"ABCD"_s, {u"ABCD"_s, u"ACD"_s}},
        {"remove beyond", [](auto& m) { m.removeShortcut(4); }, u"ABCD"_s, {}},
        {"update beyond", [&](auto& m) { m.updateShortcut(4, other); }, u"ABCD"_s, {}},
        {"move beyond", move(4, 0), u"ABCD"_s, {}},
        {"move before", move(-1, 0), u"ABCD"_s, {}},
        {"move to beyond", move(0, 5), u"ABCD"_s, {}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        storeTitles(u"ABCD"_s);
        EditHistory history;
        ShortcutManager manager(defaults_, history);
        store("[]"_ba);
        QStringList seen;
        QObject::connect(&manager, &ShortcutManager::shortcutsWillChange, &manager, [&] {
            EXPECT_EQ(stored(), "[]"_ba) << "one save, after the last change";
            seen << titles(manager);
        });
        one.operation(manager);
        EXPECT_EQ(titles(manager), one.after);
        EXPECT_EQ(manager.shortcuts().contains(other), one.after.contains(u'X')) << "by its id";
        EXPECT_EQ(seen, one.seenBefore);
        EXPECT_EQ(stored(), one.seenBefore.isEmpty() ? "[]"_ba : encodedList(manager.shortcuts()));

        seen.clear();
        EXPECT_EQ(history.undoName(), one.step);
        for (const auto& [step, result] :
             {std::pair(&EditHistory::undo, u"ABCD"_s), {&EditHistory::redo, one.after}}) {
            store("[]"_ba);
            (history.*step)();
            EXPECT_EQ(titles(manager), result);
            EXPECT_EQ(manager.shortcuts().contains(other), result.contains(u'X'));
            EXPECT_EQ(stored(), one.step.isEmpty() ? "[]"_ba : encodedList(manager.shortcuts()));
        }
    }
}

} // namespace
} // namespace velmora
