#include "viewkit/PopupMenu.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(PopupMenu, KeyEquivalentsActWhileItIsOpenUnlessTheFilterTakesThem) {
    PopupMenu menu;
    QList<Qt::Key> chosen;
    for (const Qt::Key key : {Qt::Key_Q, Qt::Key_O, Qt::Key_F})
        menu.addItem(u"Q&A"_s, Qt::CTRL | key, [&, key] {
            EXPECT_FALSE(menu.isVisible()) << "the menu closes first";
            chosen.push_back(key);
        });
    menu.actions()[1]->setEnabled(false);
    EXPECT_EQ(menu.actions()[0]->text(), u"Q&&A"_s) << "titles are shown literally";
    PopupMenu::setKeyFilter([](const QKeyEvent& event) { return event.key() == Qt::Key_F; });
    for (const auto& press :
         {Qt::CTRL | Qt::Key_Q, QKeyCombination(Qt::Key_Q), Qt::CTRL | Qt::SHIFT | Qt::Key_Q,
          Qt::CTRL | Qt::Key_O, Qt::CTRL | Qt::Key_F}) {
        menu.popUp({100, 100});
        QKeyEvent event(QEvent::KeyPress, press.key(), press.keyboardModifiers());
        QCoreApplication::sendEvent(&menu, &event);
        EXPECT_EQ(menu.isVisible(), press != (Qt::CTRL | Qt::Key_Q)) << press.toCombined();
        menu.close();
    }
    EXPECT_EQ(chosen, QList{Qt::Key_Q});
    PopupMenu::setKeyFilter({});
}

} // namespace
} // namespace velmora
