// The lists over real stores: selection, the commands by button, key, menu and drag.

#include "foundation/UserDefaults.h"
#include "input/HotKeyManager.h"
#include "input/MouseButtonManager.h"
#include "model/EditHistory.h"
#include "model/ShortcutManager.h"
#include "settings/Exchange.h"
#include "settings/RecordListView.h"
#include "settings/RecordRowDelegate.h"
#include "settings/SettingsView.h"
#include "settings/ShortcutEditorView.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputGrants.h"
#include "support/Named.h"
#include "support/TestDisplay.h"
#include "viewkit/PopupMenu.h"
#include "viewkit/Sheet.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

class SettingsListsTest : public testing::Test {
protected:
    SettingsListsTest() {
        while (!store_.shortcuts().isEmpty())
            store_.removeShortcut(0);
        for (const QChar title : u"abcde"_s)
            store_.addShortcut({title, u"star"_s, OpenUrl{u"x:"_s}});
        view_.resize(600, 500);
        view_.show();
        QApplication::setActiveWindow(&view_);
        list().setFocus();
        EXPECT_TRUE(waitFor([&] { return list().hasFocus(); }));
        shown();
    }

    RecordListView& list() { return *view_.currentWidget()->findChild<RecordListView*>(); }
    /// The editor's sheet while it is open.
    Sheet* editor() { return view_.findChild<Sheet*>(); }
    QPoint rowCentre(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    void clickRow(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, rowCentre(row));
    }
    QPushButton* button(const QString& text) {
        return &test::named<QPushButton>(*view_.currentWidget(), text);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&list(), Qt::Key(key), modifiers);
    }

    /// What the rows say, once they have followed the store.
    QString shown() {
        EXPECT_TRUE(
            waitFor([&] { return list().model()->rowCount() == store_.shortcuts().size(); }));
        QCoreApplication::processEvents();
        QString titles;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            titles += list().model()->index(row, 0).data().toString();
        return titles;
    }
    /// The title of the row that is drawn as selected.
    QString selectedRow() {
        const QModelIndexList rows = list().selectionModel()->selectedIndexes();
        return rows.isEmpty() ? QString() : rows.first().data().toString();
    }

    void chooseInMenu(int row, const QString& item) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, rowCentre(row), {});
        QApplication::sendEvent(list().viewport(), &event);
        auto* menu = list().window()->findChild<PopupMenu*>();
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions()) {
            if (action->text() == item)
                action->trigger();
        }
        menu->close();
    }

    const QTemporaryDir root_;
    UserDefaults defaults_{root_.path() + u"/velmora.conf"_s};
    EditHistory history_;
    Exchange exchange_{[] { return velmora::Setup(); }, [](const velmora::Setup&) {}};
    ShortcutManager store_{defaults_, history_};
    test::FakeInputGrants inputGrants_;
    test::FakeAccessibility accessibility_;
    MouseButtonManager mouse_{
        defaults_, history_, inputGrants_, accessibility_, [](const ShortcutAction&) {}};
    Preferences preferences_{defaults_};
    HotKeyManager hotKeyManager_{preferences_, inputGrants_, accessibility_};
    SettingsView view_{
        {.shortcutManager = store_,
         .mouseManager = mouse_,
         .history = history_,
         .exchange = exchange_,
         .preferences = preferences_,
         .hotKeyManager = hotKeyManager_,
         .inputGrants = inputGrants_,
         .loginItem = {root_.path() + u"/velmora.desktop"_s, {}},
         .infoDictionary = {}}};
};

TEST_F(SettingsListsTest, TheSelectionIsARecordAndGoesOnlyWithIt) {
    EXPECT_FALSE(button(u"edit"_s)->isEnabled() || button(u"delete"_s)->isEnabled());
    clickRow(2);
    EXPECT_TRUE(button(u"edit"_s)->isEnabled() && button(u"delete"_s)->isEnabled());
    ShortcutButton changed = store_.shortcuts().at(2);
    changed.title = u"C"_s;
    store_.updateShortcut(2, changed);
    store_.moveShortcut(2, 0);
    EXPECT_EQ(shown(), u"Cabde"_s);
    EXPECT_EQ(selectedRow(), u"C"_s);
    for (int i = 0; i < 2; ++i) {
        press(Qt::Key_Delete);
        EXPECT_EQ(shown(), u"abde"_s);
        EXPECT_EQ(selectedRow(), QString());
        EXPECT_FALSE(button(u"delete"_s)->isEnabled());
    }
    clickRow(1);
    store_.removeShortcut(1);
    EXPECT_EQ(shown(), u"ade"_s);
    for (const QString& command : {u"delete"_s, u"edit"_s}) {
        button(command)->click();
        EXPECT_EQ(shown(), u"ade"_s);
        EXPECT_FALSE(editor());
        EXPECT_TRUE(button(command)->isEnabled()) << "the selection stays";
        EXPECT_EQ(selectedRow(), QString()) << "nothing is drawn as selected that is not";
    }
}

TEST_F(SettingsListsTest, TheMenuOfARowIsAboutThatRow) {
    clickRow(0);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {}, rowCentre(3));
    EXPECT_EQ(selectedRow(), u"a"_s);
    chooseInMenu(3, u"shortcut_delete"_s);
    EXPECT_FALSE(button(u"delete"_s)->isEnabled()) << "nothing is selected";
    EXPECT_EQ(shown(), u"abce"_s);
    chooseInMenu(3, u"shortcut_edit"_s);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->findChild<QLineEdit*>()->text(), u"e"_s);
}

TEST_F(SettingsListsTest, EditorsWorkOnTheStore) {
    const auto doubleClick = [this](Qt::MouseButton by) {
        QTest::mouseDClick(list().viewport(), by, {}, rowCentre(3));
    };
    clickRow(3);
    doubleClick(Qt::MiddleButton);
    EXPECT_FALSE(editor());
    const std::pair<QString, std::function<void()>> openings[] = {
        {u"X"_s, [&] { press(Qt::Key_Return); }},
        {u"Y"_s, [&] { press(Qt::Key_F2); }},
        {u"Z"_s, [&] { doubleClick(Qt::LeftButton); }}};
    for (const auto& [title, open] : openings) {
        clickRow(3);
        open();
        ASSERT_TRUE(editor());
        editor()->findChild<QLineEdit*>()->setText(title);
        editor()->findChild<ShortcutEditorView*>()->requestSave();
        ASSERT_TRUE(waitFor([&] { return !editor(); }));
        EXPECT_EQ(shown(), u"abc%1e"_s.arg(title));
    }
    button(u"add"_s)->setFocus();
    QTest::keyClick(button(u"add"_s), Qt::Key_Return);
    ASSERT_TRUE(editor());
    auto* form = editor()->findChild<ShortcutEditorView*>();
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        field->setText(u"N"_s);
    for (int click = 0; click < 2; ++click)
        QTest::mouseClick(&form->saveButton(), Qt::LeftButton);
    EXPECT_EQ(shown(), u"abcZeN"_s) << "once for a double click";
    EXPECT_EQ(selectedRow(), u"N"_s);
}

TEST_F(SettingsListsTest, WhatComesBackIsSelectedAndSeen) {
    const auto isSeen = [&] {
        const QModelIndexList rows = list().selectionModel()->selectedIndexes();
        return !rows.isEmpty() && list().viewport()->rect().contains(list().visualRect(rows[0]));
    };
    for (int i = 0; i < 40; ++i)
        store_.addShortcut({u"z"_s, u"star"_s, OpenUrl{u"x:"_s}});
    mouse_.addBinding({4, OpenUrl{u"x:"_s}});
    shown();
    clickRow(1);
    press(Qt::Key_Delete);
    press(Qt::Key_End);
    view_.setCurrentIndex(1);
    history_.undo();
    EXPECT_EQ(view_.currentIndex(), 0) << "where it happened";
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(shown().left(5), u"abcde"_s);
    EXPECT_EQ(selectedRow(), u"b"_s);
    EXPECT_TRUE(isSeen());
    history_.redo();
    EXPECT_FALSE(button(u"edit"_s)->isEnabled()) << "it has gone again, and its selection";
    history_.undo();
    history_.undo();
    EXPECT_EQ(view_.currentIndex(), 1);
    EXPECT_EQ(list().model()->rowCount(), 0);

    view_.setCurrentIndex(0);
    QTest::keyClick(&list(), Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(editor());
    for (QLineEdit* field : editor()->findChildren<QLineEdit*>())
        field->setText(u"N"_s);
    // The list may become another meanwhile.
    store_.removeShortcut(0);
    editor()->findChild<ShortcutEditorView*>()->requestSave();
    ASSERT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_EQ(selectedRow(), u"N"_s);
    EXPECT_TRUE(isSeen());
}

TEST_F(SettingsListsTest, RowsMoveByDragAndByKey) {
    const int height = RecordRowDelegate::rowHeight();
    const struct {
        int row, y;
        QString expected;
        bool isCalledOff = false;
    } drags[] = {
        {0, 3 * height, u"bcade"_s},       {4, -50, u"ebcad"_s}, {0, 400, u"bcade"_s},
        {1, height + 2, u"bcade"_s}, // onto its own place
        {1, 4 * height, u"bcade"_s, true},
    };
    for (const auto& [row, y, expected, isCalledOff] : drags) {
        const QString dragged = shown().mid(row, 1);
        QTest::mousePress(list().viewport(), Qt::LeftButton, {}, rowCentre(row));
        // QTest::mouseMove() has no buttons down.
        for (const QPoint& place : {rowCentre(row) + QPoint(0, 30), QPoint(100, y)}) {
            QMouseEvent move(
                QEvent::MouseMove, place, list().viewport()->mapToGlobal(place), Qt::NoButton,
                Qt::LeftButton, {});
            QApplication::sendEvent(list().viewport(), &move);
        }
        if (isCalledOff)
            press(Qt::Key_Escape);
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, {100, y});
        EXPECT_EQ(shown(), expected) << row;
        EXPECT_EQ(selectedRow(), dragged) << row;
    }

    clickRow(4);
    for (int i = 0; i < 6; ++i)
        press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(shown(), u"ebcad"_s);
    // Keys of one turn act on the rows as they are.
    for (int i = 0; i < 2; ++i)
        press(Qt::Key_Down, Qt::AltModifier);
    for (const int key : {Qt::Key_Delete, Qt::Key_Home, Qt::Key_Down, Qt::Key_Down})
        press(key);
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Return);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->findChild<QLineEdit*>()->text(), u"a"_s);
    EXPECT_EQ(shown(), u"bcda"_s);
}

} // namespace
