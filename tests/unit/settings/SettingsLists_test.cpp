// Both tabs over real stores: selection, the commands by button, key, menu and drag.

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "input/MouseButtonManager.h"
#include "model/ShortcutManager.h"
#include "settings/MouseSettingsView.h"
#include "settings/RecordListView.h"
#include "settings/RecordRowDelegate.h"
#include "settings/ShortcutEditorView.h"
#include "settings/VelmoraSettingsView.h"
#include "settings/VersionLine.h"
#include "support/FakeAccessibility.h"
#include "support/FakeEventTaps.h"
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
    }

    void open() {
        view_.emplace(
            store_, taps_, [](const std::function<void()>&) {}, Bundle::infoDictionary());
        view_->resize(600, 500);
        view_->show();
        QApplication::setActiveWindow(&*view_);
        EXPECT_TRUE(waitFor([&] { return list().hasFocus(); }));
    }

    RecordListView& list() { return *view_->findChild<RecordListView*>(); }
    /// The editor's sheet while it is open.
    Sheet* editor() { return view_->findChild<Sheet*>(); }
    QPoint rowCentre(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    void clickRow(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, rowCentre(row));
    }
    QPushButton* button(const QString& text) {
        for (QPushButton* candidate : view_->findChildren<QPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    bool isEnabled(const QString& text) { return button(text)->isEnabled(); }

    QString stored() const {
        QString titles;
        for (const ShortcutButton& shortcut : store_.shortcuts())
            titles += shortcut.title;
        return titles;
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
        const QPoint place = rowCentre(row);
        QContextMenuEvent event(
            QContextMenuEvent::Mouse, place, list().viewport()->mapToGlobal(place));
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
    ShortcutManager store_{defaults_};
    test::FakeEventTaps taps_;
    std::optional<VelmoraSettingsView> view_;
};

TEST_F(SettingsListsTest, SelectionFollowsTheRecordById) {
    open();
    EXPECT_FALSE(isEnabled(u"edit"_s));
    EXPECT_FALSE(isEnabled(u"delete"_s));
    clickRow(2);
    EXPECT_TRUE(isEnabled(u"edit"_s));
    ShortcutButton changed = store_.shortcuts().at(2);
    changed.title = u"C"_s;
    store_.updateShortcut(2, changed);
    store_.moveShortcut(2, 0);
    EXPECT_EQ(shown(), u"Cabde"_s);
    EXPECT_EQ(selectedRow(), u"C"_s);
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(stored(), u"abde"_s);
    EXPECT_EQ(shown(), u"abde"_s);
    EXPECT_EQ(selectedRow(), QString());
    EXPECT_FALSE(isEnabled(u"delete"_s));
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(stored(), u"abde"_s);
}

TEST_F(SettingsListsTest, DeleteThatFindsNothingKeepsTheSelection) {
    open();
    clickRow(1);
    store_.removeShortcut(1);
    EXPECT_EQ(shown(), u"acde"_s);
    button(u"delete"_s)->click();
    EXPECT_EQ(stored(), u"acde"_s);
    EXPECT_TRUE(isEnabled(u"delete"_s)) << "the selection stays";
    button(u"edit"_s)->click();
    EXPECT_FALSE(editor());
    EXPECT_EQ(selectedRow(), QString()) << "nothing is drawn as selected that is not";
}

TEST_F(SettingsListsTest, TheMenuOfARowIsAboutThatRow) {
    open();
    clickRow(0);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {}, rowCentre(3));
    EXPECT_EQ(selectedRow(), u"a"_s);
    chooseInMenu(3, u"shortcut_delete"_s);
    EXPECT_EQ(stored(), u"abce"_s);
    EXPECT_FALSE(isEnabled(u"delete"_s)) << "nothing is selected";
    EXPECT_EQ(shown(), u"abce"_s);
    chooseInMenu(3, u"shortcut_edit"_s);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->findChild<QLineEdit*>()->text(), u"e"_s);
}

TEST_F(SettingsListsTest, EditorsWorkOnTheStore) {
    open();
    const auto save = [&](const QString& title) {
        ASSERT_TRUE(editor());
        editor()->findChild<QLineEdit*>()->setText(title);
        editor()->findChild<ShortcutEditorView*>()->requestSave();
        ASSERT_TRUE(waitFor([&] { return !editor(); }));
    };
    clickRow(3);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2}) {
        QTest::keyClick(&list(), key);
        save(key == Qt::Key_F2 ? u"Y"_s : u"X"_s);
    }
    for (const Qt::MouseButton mouseButton : {Qt::MiddleButton, Qt::LeftButton}) {
        clickRow(3);
        QTest::mouseDClick(list().viewport(), mouseButton, {}, rowCentre(3));
        EXPECT_EQ(editor() != nullptr, mouseButton == Qt::LeftButton);
    }
    save(u"Y"_s);
    EXPECT_EQ(stored(), u"abcYe"_s);
    button(u"add"_s)->setFocus();
    QTest::keyClick(button(u"add"_s), Qt::Key_Return);
    ASSERT_TRUE(editor());
    auto* form = editor()->findChild<ShortcutEditorView*>();
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        field->setText(u"Z"_s);
    for (int click = 0; click < 2; ++click)
        QTest::mouseClick(&form->saveButton(), Qt::LeftButton);
    EXPECT_EQ(stored(), u"abcYeZ"_s) << "once for a double click";
    ASSERT_TRUE(waitFor([&] { return !editor(); }));
    store_.removeShortcut(5);
    button(u"add"_s)->click();
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->windowTitle(), u"shortcut_add_title"_s);
    QTest::keyClick(editor()->findChild<QLineEdit*>(), Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_EQ(stored(), u"abcYe"_s);
    EXPECT_EQ(selectedRow(), u"Y"_s);
}

TEST_F(SettingsListsTest, RowsMoveByDragAndByKey) {
    open();
    const int height = RecordRowDelegate::rowHeight();
    const auto drag = [&](int row, int y) {
        QTest::mousePress(list().viewport(), Qt::LeftButton, {}, rowCentre(row));
        // QTest::mouseMove() has no buttons down.
        for (const QPoint& place : {rowCentre(row) + QPoint(0, 30), QPoint(100, y)}) {
            QMouseEvent move(
                QEvent::MouseMove, place, list().viewport()->mapToGlobal(place), Qt::NoButton,
                Qt::LeftButton, {});
            QApplication::sendEvent(list().viewport(), &move);
        }
    };
    const auto drop = [&](int y) {
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, {100, y});
        return shown();
    };
    drag(0, 3 * height);
    EXPECT_EQ(drop(3 * height), u"bcade"_s);
    EXPECT_EQ(selectedRow(), u"a"_s);
    drag(4, -50);
    EXPECT_EQ(drop(-50), u"ebcad"_s);
    drag(0, 400);
    EXPECT_EQ(drop(400), u"bcade"_s);
    drag(1, 1 * height + 2);
    EXPECT_EQ(drop(1 * height + 2), u"bcade"_s) << "onto its own place";
    drag(1, 4 * height);
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_EQ(drop(4 * height), u"bcade"_s) << "called off";

    clickRow(4);
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
        shown();
    }
    EXPECT_EQ(shown(), u"ebcad"_s);
    QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown(), u"becad"_s);
    EXPECT_EQ(selectedRow(), u"e"_s);
}

TEST_F(SettingsListsTest, KeysOfOneTurnActOnTheRowsAsTheyAre) {
    open();
    clickRow(0);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(stored(), u"bcade"_s);
    QTest::keyClick(&list(), Qt::Key_Delete);
    QTest::keyClick(&list(), Qt::Key_Home);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(stored(), u"bced"_s);
    QTest::keyClick(&list(), Qt::Key_Return);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->findChild<QLineEdit*>()->text(), u"d"_s);
    EXPECT_EQ(shown(), u"bced"_s);
}

TEST_F(SettingsListsTest, MouseBindingsCannotBeMovedAndAddingReplaces) {
    test::FakeAccessibility accessibility;
    MouseButtonManager manager(defaults_, taps_, accessibility, [](const ShortcutAction&) {});
    manager.addBinding({2, OpenUrl{u"x:"_s}});
    manager.addBinding({4, OpenUrl{u"y:"_s}});
    MouseSettingsView view(manager, taps_);
    view.resize(600, 500);
    view.show();
    RecordListView& rows = *view.findChild<RecordListView*>();
    rows.setCurrentIndex(rows.model()->index(1, 0));
    QTest::keyClick(&rows, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(manager.bindings().at(1).buttonNumber, 4);
    EXPECT_EQ(rows.model()->index(1, 0).data().toString(), u"mouse_click_btn5"_s);
    QTest::keyClick(&rows, Qt::Key_Delete);
    EXPECT_EQ(manager.bindings().size(), 1);
    EXPECT_TRUE(waitFor([&] { return rows.model()->rowCount() == 1; }));
}

TEST(VersionLine, IsKnownByBothTexts) {
    const QString shortVersion(Bundle::shortVersionKey);
    EXPECT_TRUE(versionText(Bundle::infoDictionary()));
    EXPECT_FALSE(versionText(std::nullopt));
    EXPECT_FALSE(versionText(QVariantMap{{shortVersion, u"1.0"_s}}));
    EXPECT_FALSE(
        versionText(QVariantMap{{shortVersion, u"1.0"_s}, {QString(Bundle::versionKey), 7}}));
}

} // namespace
