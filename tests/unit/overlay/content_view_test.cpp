#include "overlay/ContentView.h"

#include "foundation/ActionMessages.h"
#include "foundation/UserDefaults.h"
#include "model/ShortcutManager.h"
#include "overlay/DraggableNSScrollView.h"
#include "overlay/MenuButton.h"
#include "overlay/NotchAwareLayout.h"
#include "overlay/ShortcutButtonView.h"
#include "overlay/StandardLayout.h"
#include "support/Mouse.h"
#include "support/TestDisplay.h"
#include "viewkit/PopupMenu.h"
#include "viewkit/ToolTip.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QToolTip>
#include <gmock/gmock.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ContentViewTest : public testing::Test {
protected:
    ContentViewTest() {
        while (!store.shortcuts().isEmpty())
            store.removeShortcut(0);
    }

    void add(const QString& title, ButtonAlignment side = ButtonAlignment::left) {
        store.addShortcut(ShortcutButton(title, u"globe"_s, OpenUrl{title}, side));
    }

    /// A bar 1512 points wide, on screen.
    ContentView& show(bool notch = true) {
        hasNotch = notch;
        view = std::make_unique<ContentView>(
            store, [this] { return hasNotch; },
            [this](const ShortcutAction& action) {
                executed.push_back(std::get<OpenUrl>(action).url.toStdString());
            });
        view->resize(1512, notch ? 32 : 24);
        view->show();
        return *view;
    }

    /// The buttons of one side from left to right.
    QList<ShortcutButtonView*> buttons(ButtonAlignment side) const {
        if (auto* standard = view->findChild<StandardLayout*>())
            return (side == left ? standard->leftRow() : standard->rightRow()).buttons();
        auto* notched = view->findChild<NotchAwareLayout*>();
        auto& strip = side == left ? notched->leftStrip() : notched->rightStrip();
        return static_cast<ButtonRow*>(strip.documentView())->buttons();
    }
    ShortcutButtonView* button(int index) const { return buttons(ButtonAlignment::left)[index]; }

    std::vector<std::string> titles(ButtonAlignment side) const {
        std::vector<std::string> result;
        for (const ShortcutButtonView* each : buttons(side))
            result.push_back(each->shortcut().title.toStdString());
        return result;
    }

    QRect inBar(const QWidget& widget) const {
        return {widget.mapTo(view.get(), QPoint()), widget.size()};
    }
    QPointF centre(const QWidget& widget) const { return QRectF(inBar(widget)).center(); }

    const ButtonAlignment left = ButtonAlignment::left;
    const ButtonAlignment right = ButtonAlignment::right;
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(u"velmora.conf"_s)};
    ShortcutManager store{defaults};
    bool hasNotch = true;
    std::vector<std::string> executed;
    std::unique_ptr<ContentView> view;
};

TEST_F(ContentViewTest, NotchLayoutLeavesTheMiddleToTheNotch) {
    add(u"A"_s);
    add(u"C"_s, right);
    add(u"B"_s);
    show();
    EXPECT_THAT(titles(left), ElementsAre("A", "B"));
    EXPECT_THAT(titles(right), ElementsAre("C"));
    const auto* layout = view->findChild<NotchAwareLayout*>();
    EXPECT_EQ(inBar(layout->leftStrip()), QRect(0, 4, 650, 24));
    EXPECT_EQ(inBar(layout->rightStrip()), QRect(862, 4, 638, 24));
    EXPECT_EQ(inBar(*view->findChild<MenuButton*>()).left(), 0);
    EXPECT_FALSE(cachedMenuIcon().isNull()) << "the icon ships with the program";
    EXPECT_EQ(inBar(*button(0)).left(), 46 + 6);
    EXPECT_EQ(inBar(*button(1)).left(), inBar(*button(0)).right() + 1 + 6);
    EXPECT_EQ(inBar(*buttons(right)[0]).right() + 1, 1512 - 12);
}

TEST_F(ContentViewTest, StandardLayoutIsOneRowOnceThereIsNoNotch) {
    show();
    EXPECT_THAT(view->findChildren<ShortcutButtonView*>(), IsEmpty());
    EXPECT_TRUE(view->findChild<MenuButton*>()->isVisible());
    view->resize(1512, 24);
    hasNotch = false;
    add(u"B"_s, right);
    add(u"A"_s);
    add(u"C"_s, right);
    EXPECT_TRUE(view->findChild<NotchAwareLayout*>());
    QCoreApplication::processEvents();
    EXPECT_FALSE(view->findChild<NotchAwareLayout*>());
    EXPECT_EQ(view->findChild<StandardLayout*>()->size(), view->size());
    EXPECT_THAT(titles(left), ElementsAre("A"));
    EXPECT_THAT(titles(right), ElementsAre("B", "C"));
    EXPECT_EQ(inBar(*button(0)).left(), 46 + 8);
    EXPECT_EQ(inBar(*buttons(right)[1]).left(), inBar(*buttons(right)[0]).right() + 1 + 6);
    EXPECT_EQ(inBar(*buttons(right)[1]).right() + 1, 1512 - 12);
    for (const ShortcutButtonView* each : view->findChildren<ShortcutButtonView*>()) {
        EXPECT_GE(inBar(*each).top(), 0) << "a bar of 24 points holds the whole button";
        EXPECT_LT(inBar(*each).bottom(), 24);
    }
}

TEST_F(ContentViewTest, FollowsTheStoreInTheNextTurnAndKeepsViewsById) {
    add(u"A"_s);
    add(u"B"_s);
    show();
    auto* a = button(0);
    auto* b = button(1);
    test::Mouse(*view).hover(centre(*b));
    ASSERT_TRUE(b->isHovered());

    store.moveShortcut(1, 0);
    EXPECT_THAT(titles(left), ElementsAre("A", "B")) << "the change is read when it is complete";
    QCoreApplication::processEvents();
    EXPECT_THAT(titles(left), ElementsAre("B", "A"));
    EXPECT_LT(b->x(), a->x());
    const QObjectList& views = a->parentWidget()->children();
    EXPECT_LT(views.indexOf(b), views.indexOf(a)) << "assistive programs tell them in this order";

    ShortcutButton edited = store.shortcuts()[0];
    edited.title = u"Longer than before"_s;
    store.updateShortcut(0, edited);
    add(u"C"_s);
    store.removeShortcut(1);
    QCoreApplication::processEvents();
    EXPECT_THAT(titles(left), ElementsAre("Longer than before", "C"));
    EXPECT_EQ(button(0), b) << "the view stays with its id";
    EXPECT_TRUE(b->isHovered());
    EXPECT_GE(button(1)->x(), b->geometry().right() + 1 + 6);
}

TEST_F(ContentViewTest, ShowsTwoRecordsWithTheSameId) {
    add(u"A"_s);
    store.addShortcut(store.shortcuts()[0]);
    show();
    add(u"B"_s);
    QCoreApplication::processEvents();
    EXPECT_THAT(titles(left), ElementsAre("A", "A", "B"));
    EXPECT_NE(button(0), button(1));
}

TEST_F(ContentViewTest, AClickExecutesTheActionOfTheButtonAsItIsNow) {
    add(u"A"_s);
    add(u"B"_s, right);
    show();
    store.updateShortcut(0, [&] {
        ShortcutButton edited = store.shortcuts()[0];
        edited.action = OpenUrl{u"changed"_s};
        return edited;
    }());
    QCoreApplication::processEvents();
    test::Mouse mouse(*view);
    mouse.click(centre(*button(0)));
    mouse.click(centre(*buttons(right)[0]) + QPointF(3, 4));
    mouse.press(centre(*button(0)));
    mouse.release(centre(*buttons(right)[0]));
    EXPECT_THAT(executed, ElementsAre("changed", "B"));
}

TEST_F(ContentViewTest, APressThatBecameADragFiresNothing) {
    for (int i = 0; i < 40; ++i)
        add(u"Button %1"_s.arg(i));
    show();
    test::Mouse mouse(*view);
    const QPointF at = centre(*button(1));

    // The content follows the pointer, which therefore never leaves the button.
    mouse.press(at);
    mouse.drag(at - QPointF(4, 0));
    mouse.drag(at - QPointF(6, 0));
    mouse.release(at - QPointF(6, 0));
    // Out and back, faster than the monitor reports.
    mouse.press(at);
    mouse.drag(at + QPointF(7, 0));
    mouse.drag(at);
    mouse.release(at);
    // Only the release tells.
    mouse.press(at);
    mouse.release(at + QPointF(5.5, 0));
    EXPECT_THAT(executed, IsEmpty());

    mouse.press(at);
    mouse.release(at + QPointF(3, 4));
    EXPECT_THAT(executed, ElementsAre("Button 1")) << "5 points are still a click";
}

TEST_F(ContentViewTest, WithoutStripsAClickMayWanderInsideTheButton) {
    add(u"A rather long title"_s);
    show(false);
    test::Mouse mouse(*view);
    const QPointF at = centre(*button(0));
    mouse.press(at - QPointF(30, 0));
    mouse.release(at + QPointF(30, 0));
    EXPECT_EQ(executed.size(), 1u);
}

TEST_F(ContentViewTest, TheMenuSendsItsMessages) {
    std::vector<std::string> sent;
    for (const char* name : {"toggleOverlayMenu", "showSettings", "quitApp"}) {
        ActionMessages::shared().setHandler(
            QString::fromLatin1(name), [&sent, name] { sent.emplace_back(name); });
    }
    show();
    auto* menuButton = view->findChild<MenuButton*>();
    for (const int item : {0, 2, 4}) {
        test::Mouse(*view).click(centre(*menuButton));
        auto* menu = qobject_cast<PopupMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        ASSERT_EQ(menu->actions().size(), 5);
        menu->close();
        menu->actions()[item]->trigger();
        QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    }
    EXPECT_THAT(sent, ElementsAre("toggleOverlayMenu", "showSettings", "quitApp"));
    for (const char* name : {"toggleOverlayMenu", "showSettings", "quitApp"})
        ActionMessages::shared().setHandler(QString::fromLatin1(name), {});
}

TEST_F(ContentViewTest, ToolTipsShowTheActionLiterallyThoughTheBarIsNeverActive) {
    add(u"<b>x</b>"_s);
    show();
    EXPECT_TRUE(view->testAttribute(Qt::WA_AlwaysShowToolTips));
    QHelpEvent request(QEvent::ToolTip, {5, 5}, button(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(button(0), &request);
    EXPECT_TRUE(QToolTip::text().contains(ToolTip::markup(displayName(OpenUrl{u"<b>x</b>"_s}))));
    QToolTip::hideText();
}

TEST(ShortcutButtonView, TakesRoomOnlyForWhatItShows) {
    const auto width = [](const QString& title, const QString& icon) {
        return ShortcutButtonView(ShortcutButton(title, icon, OpenUrl{})).sizeHint().width();
    };
    EXPECT_LT(width({}, u"globe"_s), width(u"Title"_s, u"globe"_s));
    EXPECT_EQ(width(u"Title"_s, u"no such symbol"_s), width(u"Title"_s, {}));
    EXPECT_EQ(width(u"a\nb"_s, {}), width(u"a b"_s, {}));
    EXPECT_EQ(width(u"W"_s.repeated(1000000), {}), 20 + 4096);
}

TEST(ShortcutButtonView, IsAButtonToAssistiveTechnology) {
    QAccessible::setActive(true);
    ShortcutButtonView named(ShortcutButton(u"R&D"_s, u"key"_s, OpenUrl{}));
    ShortcutButtonView unnamed(ShortcutButton({}, u"key"_s, ExecuteShellCommand{u"ls"_s}));
    auto* interface = QAccessible::queryAccessibleInterface(&named);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    EXPECT_EQ(interface->text(QAccessible::Name), u"R&D"_s);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&unnamed)->text(QAccessible::Name), unnamed.help());
    EXPECT_EQ(named.focusPolicy(), Qt::NoFocus);
    bool clicked = false;
    QObject::connect(&named, &QAbstractButton::clicked, [&] { clicked = true; });
    named.show();
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(test::waitFor([&] { return clicked; }));
}

TEST(StandardLayout, ShortensTheLongestTitlesFirst) {
    struct {
        QList<int> widths;
        int excess, limit;
    } const cases[] = {
        {{10, 50, 30}, 0, std::numeric_limits<int>::max()},
        {{10, 50, 30}, 20, 30}, // 50 -> 30
        {{10, 50, 30}, 21, 29}, // both 50 and 30 -> 29
        {{10, 50, 30}, 60, 10}, // 10 each
        {{10, 50, 30}, 90, 0},  // nothing left
        {{10, 50, 30}, 500, 0},
        {{}, 5, 0},
    };
    for (const auto& [widths, excess, limit] : cases)
        EXPECT_EQ(titleWidthLimit(widths, excess), limit) << excess;
}

TEST_F(ContentViewTest, ACrowdedStandardBarKeepsEveryButtonInside) {
    for (int i = 0; i < 24; ++i)
        add(u"A title of some length %1"_s.arg(i), i % 2 ? left : right);
    show(false);
    EXPECT_LE(inBar(*buttons(right).last()).right() + 1, 1512 - 12);
    EXPECT_GE(inBar(*buttons(right).first()).left(), inBar(*buttons(left).last()).right() + 1 + 24);
    view->resize(8000, 24);
    EXPECT_EQ(button(0)->width(), button(0)->titleWidth() + 38) << "titles return with the room";
}

} // namespace
} // namespace velmora
