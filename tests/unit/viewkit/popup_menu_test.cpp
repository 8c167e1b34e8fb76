#include "viewkit/PopUpButton.h"
#include "viewkit/PopupMenu.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(PopupMenu, KeyEquivalentsActWhileItIsOpenUnlessTheFilterTakesThem) {
    PopupMenu menu;
    std::vector<std::string> chosen;
    const auto add = [&](const QString& title, const QKeySequence& key) {
        menu.addItem(title, key, [&, name = title.toStdString()] {
            EXPECT_FALSE(menu.isVisible()) << "the menu closes first";
            chosen.push_back(name);
        });
    };
    add(u"Settings"_s, Qt::CTRL | Qt::Key_Comma);
    add(u"Q&A"_s, Qt::CTRL | Qt::Key_Q);
    add(u"Off"_s, Qt::CTRL | Qt::Key_O);
    menu.actions()[2]->setEnabled(false);
    EXPECT_EQ(menu.actions()[1]->text(), u"Q&&A"_s) << "titles are shown literally";
    PopupMenu::setKeyFilter([](const QKeyEvent& event) { return event.key() == Qt::Key_F; });
    add(u"Filtered"_s, Qt::CTRL | Qt::Key_F);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* chosen; // null: the menu stays open
    } presses[] = {
        {Qt::Key_Comma, Qt::ControlModifier, "Settings"},
        {Qt::Key_Q, Qt::ControlModifier, "Q&A"},
        {Qt::Key_Q, Qt::NoModifier, nullptr},
        {Qt::Key_Q, Qt::ControlModifier | Qt::ShiftModifier, nullptr},
        {Qt::Key_O, Qt::ControlModifier, nullptr},
        {Qt::Key_F, Qt::ControlModifier, nullptr},
    };
    for (const auto& press : presses) {
        chosen.clear();
        menu.popUp({100, 100});
        QKeyEvent event(QEvent::KeyPress, press.key, press.modifiers);
        QCoreApplication::sendEvent(&menu, &event);
        EXPECT_EQ(menu.isVisible(), !press.chosen) << press.key;
        EXPECT_EQ(chosen.empty() ? "" : chosen[0], press.chosen ? press.chosen : "") << press.key;
        menu.close();
    }
    PopUpButton button(u"Kind"_s);
    button.addItems({u"a"_s, u"b"_s});
    button.show();
    button.showPopup();
    for (const bool filtered : {true, false}) {
        PopupMenu::setKeyFilter([filtered](const QKeyEvent&) { return filtered; });
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(button.view(), &down);
        EXPECT_EQ(button.view()->currentIndex().row(), filtered ? 0 : 1);
    }
    button.hidePopup();
    PopupMenu::setKeyFilter({});
}

} // namespace
} // namespace velmora
