#include "model/ShortcutManager.h"

#include "foundation/UserDefaults.h"
#include "model/StoredForm.h"

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
    std::optional<QByteArray> unreadable() const {
        return defaults_.data(u"SavedShortcuts.unreadable"_s);
    }

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
};

TEST_F(ShortcutManagerTest, FirstStartMakesTheFourDefaults) {
    const ShortcutManager manager(defaults_);
    const auto& list = manager.shortcuts();
    ASSERT_EQ(list.size(), 4);
    const ShortcutButton expected[] = {
        {u"Safari"_s, u"safari"_s, LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}},
        {u"Finder"_s, u"folder"_s, LaunchApp{u"Finder"_s, u"com.apple.finder"_s}},
        {u"Google"_s, u"globe"_s, OpenUrl{u"https://www.google.com/"_s}, ButtonAlignment::right},
        {u"スクショ"_s, u"camera"_s,
         ExecuteShellCommand{u"screencapture -i ~/Desktop/screenshot.png"_s},
         ButtonAlignment::right},
    };
    for (qsizetype index = 0; index < list.size(); ++index) {
        EXPECT_EQ(list[index].title, expected[index].title);
        EXPECT_EQ(list[index].icon, expected[index].icon);
        EXPECT_EQ(list[index].action, expected[index].action);
        EXPECT_EQ(list[index].alignment, expected[index].alignment);
        EXPECT_EQ(list.count(list[index]), 1) << "an id of its own";
    }
    EXPECT_EQ(stored(), encodedList(list));
    EXPECT_FALSE(unreadable().has_value());
}

TEST_F(ShortcutManagerTest, NothingUsableBringsTheDefaultsBack) {
    struct Case {
        QByteArray bytes;
        bool keptAside;
    };
    QByteArray oneBadOfTwo = encodedList(QList{named(u"a"_s), named(u"b"_s)});
    oneBadOfTwo.replace(oneBadOfTwo.lastIndexOf("openURL"), 7, "openUrl");
    const Case cases[] = {
        {"[]", false}, {"", false}, {oneBadOfTwo, true}, {"\x01\xff\0]"_ba, true}, {"{}", true}};
    for (const Case& unusable : cases) {
        SCOPED_TRACE(unusable.bytes.constData());
        defaults_.setData(u"SavedShortcuts.unreadable"_s, "before"_ba);
        store(unusable.bytes);
        const ShortcutManager manager(defaults_);
        EXPECT_EQ(manager.shortcuts().size(), 4);
        EXPECT_EQ(stored(), encodedList(manager.shortcuts()));
        EXPECT_EQ(unreadable(), unusable.keptAside ? unusable.bytes : "before"_ba);
    }
}

TEST_F(ShortcutManagerTest, OperationsAnnounceChangeAndSave) {
    struct Case {
        const char* name;
        std::function<void(ShortcutManager&)> operation;
        QString after;
        QStringList seenBefore; ///< the titles at each announcement
    };
    const ShortcutButton other = named(u"X"_s);
    const auto move = [](qsizetype source, qsizetype destination) {
        return [=](ShortcutManager& manager) { manager.moveShortcut(source, destination); };
    };
    const Case cases[] = {
        {"add", [](auto& m) { m.addShortcut(named(u"E"_s)); }, u"ABCDE"_s, {u"ABCD"_s}},
        {"add own", [](auto& m) { m.addShortcut(m.shortcuts()[1]); }, u"ABCDB"_s, {u"ABCD"_s}},
        {"remove", [](auto& m) { m.removeShortcut(3); }, u"ABC"_s, {u"ABCD"_s}},
        {"update", [&](auto& m) { m.updateShortcut(0, other); }, u"XBCD"_s, {u"ABCD"_s}},
        {"0 to 2", move(0, 2), u"BACD"_s, {u"ABCD"_s, u"BCD"_s}},
        {"0 to end", move(0, 4), u"BCDA"_s, {u"ABCD"_s, u"BCD"_s}},
        {"3 to 0", move(3, 0), u"DABC"_s, {u"ABCD"_s, u"ABC"_s}},
        {"1 to 1", move(1, 1), u"ABCD"_s, {u"ABCD"_s, u"ACD"_s}},
        {"1 to 2", move(1, 2), u"ABCD"_s, {u"ABCD"_s, u"ACD"_s}},
        {"remove beyond", [](auto& m) { m.removeShortcut(4); }, u"ABCD"_s, {}},
        {"remove before", [](auto& m) { m.removeShortcut(-1); }, u"ABCD"_s, {}},
        {"update beyond", [&](auto& m) { m.updateShortcut(4, other); }, u"ABCD"_s, {}},
        {"update before", [&](auto& m) { m.updateShortcut(-1, other); }, u"ABCD"_s, {}},
        {"move beyond", move(4, 0), u"ABCD"_s, {}},
        {"move before", move(-1, 0), u"ABCD"_s, {}},
        {"move to beyond", move(0, 5), u"ABCD"_s, {}},
        {"move to before", move(0, -1), u"ABCD"_s, {}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        storeTitles(u"ABCD"_s);
        ShortcutManager manager(defaults_);
        store("unsaved"_ba);
        QStringList seen;
        QObject::connect(&manager, &ShortcutManager::shortcutsWillChange, &manager, [&] {
            EXPECT_EQ(stored(), "unsaved"_ba) << "one save, after the last change";
            seen << titles(manager);
        });
        one.operation(manager);
        EXPECT_EQ(titles(manager), one.after);
        EXPECT_EQ(manager.shortcuts().contains(other), one.after.contains(u'X')) << "by its id";
        EXPECT_EQ(seen, one.seenBefore);
        EXPECT_EQ(
            stored(), one.seenBefore.isEmpty() ? "unsaved"_ba : encodedList(manager.shortcuts()));
    }
}

} // namespace
} // namespace velmora
