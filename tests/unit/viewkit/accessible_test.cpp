// What assistive programs find and do, asked of the interfaces that they reach through the bus.

#include "support/TestDisplay.h"
#include "viewkit/AccessibleViews.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/PopupMenu.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QAccessibleInterface* of(QObject& object) {
    installAccessibleViews();
    return QAccessible::queryAccessibleInterface(&object);
}

TEST(Accessible, AViewIsWhatItIsNowAndAWindowHoldsItsOpenMenu) {
    QWidget window;
    window.setWindowTitle(u"Title"_s);
    QWidget view;
    EXPECT_EQ(of(window)->text(QAccessible::Name), u"Title"_s);
    EXPECT_EQ(of(view)->role(), QAccessible::Window) << "as long as it has no parent";
    view.setParent(&window);
    EXPECT_EQ(of(view)->role(), QAccessible::Client);
    view.setAccessibleName(u"Group"_s);
    EXPECT_EQ(of(view)->role(), QAccessible::Grouping);

    window.show();
    PopupMenu menu(&view);
    menu.addItem(u"Item"_s, {}, [] {});
    EXPECT_EQ(of(window)->childCount(), 1);
    menu.popUp({});
    ASSERT_EQ(of(window)->childCount(), 2);
    QAccessibleInterface* open = of(window)->child(1);
    EXPECT_EQ(open->object(), &menu);
    EXPECT_EQ(of(window)->indexOfChild(open), 1);
    EXPECT_EQ(open->child(0)->text(QAccessible::Name), u"Item"_s);
    menu.close();
    EXPECT_EQ(of(window)->childCount(), 1);
    view.setParent(nullptr);
}

TEST(Accessible, APopUpButtonSaysItsChoiceAndOffersItsItemsInItsWindow) {
    QWidget window;
    PopUpButton button(u"Kind"_s);
    button.setParent(&window);
    for (const QString& title : {u"a"_s, u"b & c"_s})
        button.addItem(title);
    window.show();
    EXPECT_EQ(of(button)->text(QAccessible::Name), u"Kind"_s);
    EXPECT_EQ(of(button)->text(QAccessible::Description), u"a"_s);
    QTest::keyClick(&button, Qt::Key_Down);
    ASSERT_EQ(of(window)->childCount(), 2);
    QAccessibleInterface* item = of(window)->child(1)->child(1);
    EXPECT_EQ(button.currentIndex(), 0) << "opening chooses nothing";
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(test::waitFor([&] { return button.currentIndex() == 1; }));
    EXPECT_EQ(of(button)->text(QAccessible::Description), u"b & c"_s);
}

} // namespace
} // namespace velmora
