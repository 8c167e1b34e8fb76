// What assistive programs find and do, asked of the interfaces that they reach through the bus.

#include "support/TestDisplay.h"
#include "viewkit/AccessibleViews.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/PopupMenu.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class AccessibleTest : public testing::Test {
protected:
    static void SetUpTestSuite() { installAccessibleViews(); }

    static QAccessibleInterface* of(QObject& object) {
        return QAccessible::queryAccessibleInterface(&object);
    }

    /// What a program that reads the item and acts on it does.
    static void toggle(PopUpButton& button, int row) {
        of(button)->child(0)->child(row)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
    }
};

TEST_F(AccessibleTest, AViewIsWhatItIsNow) {
    QWidget window;
    window.setWindowTitle(u"Title"_s);
    QWidget view;
    QLabel label(&view);
    EXPECT_EQ(of(window)->role(), QAccessible::Window);
    EXPECT_EQ(of(window)->text(QAccessible::Name), u"Title"_s);
    EXPECT_EQ(of(view)->role(), QAccessible::Window) << "as long as it has no parent";
    view.setParent(&window);
    EXPECT_EQ(of(view)->role(), QAccessible::Client);
    view.setAccessibleName(u"Group"_s);
    EXPECT_EQ(of(view)->role(), QAccessible::Grouping);
    EXPECT_EQ(of(label)->role(), QAccessible::StaticText);
    view.setParent(nullptr);
}

TEST_F(AccessibleTest, AWindowHoldsTheMenuThatIsOpenInIt) {
    QWidget window;
    QWidget opener(&window);
    window.show();
    PopupMenu menu(&opener);
    menu.addItem(u"Item"_s, {}, [] {});
    QAccessibleInterface* frame = of(window);
    EXPECT_EQ(frame->childCount(), 1);
    menu.popUp({});
    ASSERT_EQ(frame->childCount(), 2);
    QAccessibleInterface* open = frame->child(1);
    EXPECT_EQ(open->object(), &menu);
    EXPECT_EQ(frame->indexOfChild(open), 1);
    EXPECT_EQ(open->child(0)->text(QAccessible::Name), u"Item"_s);
    QWidget other;
    EXPECT_EQ(of(other)->childCount(), 0);
    menu.close();
    EXPECT_EQ(frame->childCount(), 1);
}

TEST_F(AccessibleTest, SelectingAnItemOfAPopUpButtonChoosesIt) {
    PopUpButton button(u"Kind"_s);
    button.addItems({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    button.show();
    EXPECT_EQ(of(button)->child(0)->text(QAccessible::Name), u"Kind"_s);
    const auto becomes = [&](int index) {
        return test::waitFor([&] { return button.currentIndex() == index; });
    };
    toggle(button, 2);
    EXPECT_TRUE(becomes(2));
    button.showPopup();
    toggle(button, 1);
    EXPECT_TRUE(becomes(1));
    EXPECT_TRUE(test::waitFor([&] { return !button.view()->isVisible(); }));

    // Passing over items chooses none, and leaves none that cannot be chosen.
    button.showPopup();
    QTest::keyClick(button.view(), Qt::Key_Down);
    QTest::keyClick(button.view(), Qt::Key_Down);
    EXPECT_EQ(button.view()->currentIndex().row(), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(button.currentIndex(), 1);
    EXPECT_TRUE(button.view()->isVisible());
    button.hidePopup();
    QCoreApplication::processEvents();
    EXPECT_EQ(button.currentIndex(), 1);
    toggle(button, 3);
    EXPECT_TRUE(becomes(3));
}

} // namespace
} // namespace velmora
