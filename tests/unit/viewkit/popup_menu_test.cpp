#include "viewkit/PopUpButton.h"
#include "viewkit/PopupMenu.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <gmock/gmock.h>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PopupMenuTest : public testing::Test {
protected:
    PopupMenuTest() {
        menu.addItem(u"Toggle"_s, {}, record("toggle"));
        menu.addSeparator();
        menu.addItem(u"Settings"_s, Qt::CTRL | Qt::Key_Comma, record("settings"));
        menu.addItem(u"Q&A"_s, Qt::CTRL | Qt::Key_Q, record("quit"));
    }
    ~PopupMenuTest() override { PopupMenu::setKeyFilter({}); }

    std::function<void()> record(std::string name) {
        return [this, name] {
            EXPECT_FALSE(menu.isVisible()) << "the menu closes first";
            chosen.push_back(name);
        };
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers, QWidget* view = nullptr) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(view ? view : &menu, &event);
    }

    PopupMenu menu;
    std::vector<std::string> chosen;
};

TEST_F(PopupMenuTest, KeyEquivalentsActWhileItIsOpen) {
    EXPECT_TRUE(menu.actions()[3]->isShortcutVisibleInContextMenu());
    EXPECT_EQ(menu.actions()[3]->text(), u"Q&&A"_s) << "titles are shown literally";
    menu.popUp({100, 100});
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_FALSE(menu.isVisible());
    menu.popUp({100, 100});
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(chosen, ElementsAre("settings", "quit"));
}

TEST_F(PopupMenuTest, OtherKeysChooseNothing) {
    menu.popUp({100, 100});
    press(Qt::Key_Q, Qt::NoModifier);
    press(Qt::Key_Q, Qt::ControlModifier | Qt::ShiftModifier);
    menu.actions()[2]->setEnabled(false);
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_THAT(chosen, IsEmpty());
    EXPECT_TRUE(menu.isVisible());
    press(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(PopupMenuTest, TheFilterSeesKeysFirst) {
    PopupMenu::setKeyFilter([](const QKeyEvent& event) { return event.key() == Qt::Key_Q; });
    menu.popUp({100, 100});
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(chosen, IsEmpty());
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_THAT(chosen, ElementsAre("settings"));

    PopUpButton button(u"Kind"_s);
    button.addItems({u"a"_s, u"b"_s});
    button.show();
    button.showPopup();
    for (const bool filtered : {true, false}) {
        PopupMenu::setKeyFilter([filtered](const QKeyEvent&) { return filtered; });
        press(Qt::Key_Down, Qt::NoModifier, button.view());
        EXPECT_EQ(button.view()->currentIndex().row(), filtered ? 0 : 1);
    }
    button.hidePopup();
}

} // namespace
} // namespace velmora
