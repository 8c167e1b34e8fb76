// The life of the settings window, its frame and its menu bar.

#include "foundation/ActionMessages.h"
#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "input/HotKeyManager.h"
#include "input/MouseButtonManager.h"
#include "model/ShortcutManager.h"
#include "platform/WindowActivation.h"
#include "settings/AboutView.h"
#include "settings/Exchange.h"
#include "settings/MainMenuBar.h"
#include "settings/RecordListPane.h"
#include "settings/SettingsWindow.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputGrants.h"
#include "support/KeyTexts.h"
#include "support/TestDisplay.h"
#include "viewkit/Sheet.h"
#include "viewkit/Style.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

class FakeActivation : public WindowActivation {
public:
    QList<QWidget*> activated;
    void makeKeyAndOrderFront(QWidget& window) override {
        activated.append(&window);
        window.show();
    }
};

class SettingsWindowTest : public testing::Test {
protected:
    const QTemporaryDir root_;
    UserDefaults defaults_{root_.path() + u"/velmora.conf"_s};
    EditHistory history_;
    Exchange exchange_{[] { return velmora::Setup(); }, [](const velmora::Setup&) {}};
    test::FakeInputGrants inputGrants_;
    test::FakeAccessibility accessibility_;
    ShortcutManager shortcuts_{defaults_, history_};
    MouseButtonManager mouse_{
        defaults_, history_, inputGrants_, accessibility_, [](const ShortcutAction&) {}};
    Preferences preferences_{defaults_};
    HotKeyManager hotKeyManager_{preferences_, inputGrants_, accessibility_};
    FakeActivation activation_;
    SettingsWindow window_{defaults_, activation_, [this] {
                               return SettingsServices{
                                   .shortcutManager = shortcuts_,
                                   .mouseManager = mouse_,
                                   .history = history_,
                                   .exchange = exchange_,
                                   .preferences = preferences_,
                                   .hotKeyManager = hotKeyManager_,
                                   .inputGrants = inputGrants_,
                                   .loginItem = {root_.path() + u"/velmora.desktop"_s, {}},
                                   .infoDictionary = Bundle::infoDictionary()};
                           }};

    QTabWidget& tabs() { return *window_.window()->findChild<QTabWidget*>(); }
};

TEST_F(SettingsWindowTest, IsMadeOnceAndDroppedWhenItCloses) {
    window_.show();
    const QPointer<QWidget> first = window_.window();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->windowTitle(), u"Velmora 設定"_s);
    tabs().setCurrentIndex(1);
    window_.show();
    EXPECT_EQ(window_.window(), first);
    EXPECT_EQ(tabs().currentIndex(), 1);
    tabs().setCurrentIndex(0);
    first->findChild<RecordListPane*>()->findChild<QPushButton*>()->click();
    const QPointer<Sheet> editor = first->findChild<Sheet*>();
    window_.show();
    EXPECT_EQ(activation_.activated, (QList<QWidget*>{first, first, first, editor}));
    tabs().setCurrentIndex(1);

    first->close();
    EXPECT_FALSE(window_.window());
    EXPECT_TRUE(waitFor([&] { return !first && !editor; }));
    EXPECT_EQ(shortcuts_.shortcuts().size(), 4);

    window_.show();
    EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(SettingsWindowTest, TheMenuBarSendsMessagesAndEditsTheFocusedField) {
    window_.setMainMenu(
        {{u""_s, {{u"Tom & Jerry"_s, u"testMessage:"_s, QKeySequence(u"Ctrl+T"_s)}}},
         {u"Edit"_s,
          {{u"Select All"_s, u"selectAll:"_s, {}},
           {u"Undo"_s, u"undo:"_s, QKeySequence(u"Ctrl+Z"_s)},
           {u"Redo"_s, u"redo:"_s, QKeySequence(u"Ctrl+Shift+Z"_s)}}}});
    int sent = 0;
    ActionMessages::shared().setHandler(u"testMessage:"_s, [&] { ++sent; });
    window_.show();
    QWidget& window = *window_.window();
    QApplication::setActiveWindow(&window);
    const auto* bar = window.findChild<MainMenuBar*>();
    EXPECT_EQ(bar->actions()[0]->menu()->actions()[0]->text(), u"Tom && Jerry"_s);
    QApplication::setStyle(new Style);
    // Alt alone is the hot key's: the window never sees the M.
    QTest::keyClick(&window, Qt::Key_Alt);
    EXPECT_FALSE(bar->activeAction());
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_EQ(bar->activeAction(), bar->actions()[0]);
    bar->actions()[0]->menu()->close();

    QMenu* edit = bar->actions()[1]->menu();
    edit->popup({});
    QTest::keyClick(edit, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(sent, 1) << "whichever menu is open";
    EXPECT_FALSE(edit->isVisible());
    QAction* selectAll = edit->actions()[0];
    Q_EMIT edit->aboutToShow();
    EXPECT_FALSE(selectAll->isEnabled());
    Q_EMIT edit->aboutToHide();
    QLineEdit field(u"text"_s);
    field.show();
    QApplication::setActiveWindow(&field);
    field.setFocus();
    field.deselect();
    Q_EMIT edit->aboutToShow();
    EXPECT_TRUE(selectAll->isEnabled());
    selectAll->trigger();
    EXPECT_EQ(field.selectedText(), u"text"_s);

    // Undo is the field's while there is one, else the lists', with what it would do.
    const test::KeyTexts texts;
    const QAction* undo = edit->actions()[1];
    const QString undoTitle = u"menu_undo_format edit_remove_format A && B.."_s;
    shortcuts_.addShortcut({u"A & B"_s, {}, OpenUrl{u"u"_s}});
    shortcuts_.removeShortcut(4);
    Q_EMIT edit->aboutToShow();
    EXPECT_EQ(undo->text(), u"Undo"_s);
    QApplication::setActiveWindow(&window);
    tabs().setFocus();
    Q_EMIT edit->aboutToShow();
    EXPECT_EQ(undo->text(), undoTitle);
    EXPECT_FALSE(edit->actions()[2]->isEnabled());
    Q_EMIT edit->aboutToHide();
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shortcuts_.shortcuts().size(), 5);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(shortcuts_.shortcuts().size(), 4);

    for (int i = 0; i < 2; ++i)
        window_.showAboutPanel();
    EXPECT_EQ(window.findChildren<AboutView*>().size(), 1);
    QWidget* sheet = window.findChild<Sheet*>();
    QApplication::setActiveWindow(sheet);
    QTest::keyClick(sheet, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(sent, 2);
    QTest::keyClick(sheet, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shortcuts_.shortcuts().size(), 4) << "the list is held by the sheet";
    ActionMessages::shared().setHandler(u"testMessage:"_s, {});
}

} // namespace
