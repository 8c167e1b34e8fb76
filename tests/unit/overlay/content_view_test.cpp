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
#include "viewkit/PopupMenu.h"
#include "viewkit/ToolTip.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QToolTip>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using testing::ElementsAre;

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

    DraggableNSScrollView& strip(ButtonAlignment side) const {
        return *view->findChildren<DraggableNSScrollView*>()[side == left ? 0 : 1];
    }
    /// The buttons of one side from left to right.
    QList<ShortcutButtonView*> buttons(ButtonAlignment side) const {
        return static_cast<ButtonRow*>(strip(side).documentView())->buttons();
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
    /// The distances in the row before, between and after these.
    QList<int> gaps(const QList<const QWidget*>& row) const {
        QList<int> result;
        int end = 0;
        for (const QWidget* each : row) {
            result.append(inBar(*each).left() - end);
            end = inBar(*each).right() + 1;
            EXPECT_TRUE(view->rect().contains(inBar(*each)));
        }
        return result << view->width() - end;
    }
    QPointF centre(const QWidget& widget) const { return QRectF(inBar(widget)).center(); }

    const ButtonAlignment left = ButtonAlignment::left;
    const ButtonAlignment right = ButtonAlignment::right;
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(u"velmora.conf"_s)};
    EditHistory history;
    ShortcutManager store{defaults, history};
    bool hasNotch = true;
    std::vector<std::string> executed;
    std::unique_ptr<ContentView> view;
};

TEST_F(ContentViewTest, LeavesTheMiddleToANotchAndIsOneRowWithoutOne) {
    add(u"A"_s);
    add(u"C"_s, right);
    add(u"B"_s);
    show();
    EXPECT_THAT(titles(left), ElementsAre("A", "B"));
    EXPECT_THAT(titles(right), ElementsAre("C"));
    EXPECT_EQ(inBar(strip(left)), QRect(0, 4, 650, 24));
    EXPECT_EQ(inBar(strip(right)), QRect(862, 4, 638, 24));
    EXPECT_FALSE(cachedMenuIcon().isNull()) << "the icon ships with the program";
    const auto* menu = view->findChild<MenuButton*>();
    EXPECT_THAT(gaps({menu, button(0), button(1)}).first(3), ElementsAre(0, 6, 6));
    EXPECT_EQ(gaps({buttons(right)[0]}).last(), 12);

    view->resize(1512, 24);
    hasNotch = false;
    add(u"D"_s, right);
    QCoreApplication::processEvents();
    EXPECT_FALSE(view->findChild<NotchAwareLayout*>());
    const auto* row = view->findChild<StandardLayout*>();
    EXPECT_EQ(row->size(), view->size());
    EXPECT_THAT(titles(right), ElementsAre("C", "D"));
    menu = view->findChild<MenuButton*>();
    EXPECT_THAT(gaps({menu, button(0), button(1)}).first(3), ElementsAre(0, 8, 6));
    EXPECT_THAT(gaps({buttons(right)[0], buttons(right)[1]}).last(2), ElementsAre(6, 12));
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
    const QObjectList& views = a->parentWidget()->children();
    EXPECT_LT(views.indexOf(b), views.indexOf(a)) << "assistive programs tell them in this order";

    ShortcutButton edited = store.shortcuts()[0];
    edited.title = u"Longer than before"_s;
    store.updateShortcut(0, edited);
    add(u"C"_s);
    store.addShortcut(store.shortcuts()[2]); // an id may repeat
    store.removeShortcut(1);
    QCoreApplication::processEvents();
    EXPECT_THAT(titles(left), ElementsAre("Longer than before", "C", "C"));
    EXPECT_EQ(button(0), b) << "the view stays with its id";
    EXPECT_TRUE(b->isHovered());
    EXPECT_NE(button(1), button(2));
    EXPECT_THAT(gaps({b, button(1), button(2)}).mid(1, 2), ElementsAre(6, 6));
}

TEST_F(ContentViewTest, APressExecutesTheActionAsItIsNowUnlessItBecameADrag) {
    add(u"A"_s);
    for (int i = 0; i < 40; ++i)
        add(u"Button %1"_s.arg(i));
    add(u"B"_s, right);
    show();
    ShortcutButton edited = store.shortcuts()[0];
    edited.action = OpenUrl{u"changed"_s};
    store.updateShortcut(0, edited);
    QCoreApplication::processEvents();
    test::Mouse mouse(*view);
    mouse.click(centre(*button(0)));
    mouse.click(centre(*buttons(right)[0]) + QPointF(3, 4));
    mouse.press(centre(*button(0)));
    mouse.release(centre(*buttons(right)[0]));
    EXPECT_THAT(std::exchange(executed, {}), ElementsAre("changed", "B"));

    const QPointF at = centre(*button(1));
    for (const double farthest : {-6.0, 7.0}) {
        mouse.press(at);
        mouse.drag(at + QPointF(farthest, 0));
        mouse.drag(at);
        mouse.release(at);
    }
    mouse.press(at);
    mouse.release(at + QPointF(5.5, 0));
    EXPECT_TRUE(executed.empty()) << "also when only the release tells";
    mouse.press(at);
    mouse.release(at + QPointF(3, 4));
    EXPECT_THAT(executed, ElementsAre("Button 0")) << "5 points are still a click";
}

TEST_F(ContentViewTest, TheMenuNamesTheHotKeyAndSendsItsMessages) {
    show();
    test::Mouse(*view).click(centre(*view->findChild<MenuButton*>()));
    auto* menu = qobject_cast<PopupMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->actions()[0]->text().endsWith(u"\tAlt+M"_s));
    QStringList sent;
    for (const QString& name : {u"toggleOverlayMenu"_s, u"showSettings"_s, u"quitApp"_s}) {
        ActionMessages::shared().setHandler(name, [&sent, name] { sent << name; });
        menu->actions().value(int(sent.size()) * 2)->trigger(); // separators between them
        ActionMessages::shared().setHandler(name, {});
        EXPECT_EQ(sent.value(sent.size() - 1), name);
    }
    menu->close();
}

TEST_F(ContentViewTest, ACrowdedRowIsTwoStripsWhoseSoftEdgesTellThatThereIsMore) {
    for (int i = 0; i < 24; ++i)
        add(u"A title of some length %1"_s.arg(i), i % 2 ? left : right);
    show(false);
    const int width = button(0)->width();
    EXPECT_EQ(inBar(strip(left)).right() + 25, inBar(strip(right)).left());
    EXPECT_EQ(inBar(strip(right)).right(), view->width() - 1 - 12);
    strip(left).scrollBy(-200);
    const QImage picture = view->grab().toImage();
    const auto light = [&](const DraggableNSScrollView& seen, int place) {
        const int x = inBar(seen).left() + (place < 0 ? seen.width() : 0) + place;
        return qGray(picture.pixel(x, 3)) - qGray(picture.pixel(x, 0));
    };
    // At the ends nothing is left of the buttons: only the left end of the right strip is one.
    EXPECT_LE(light(strip(left), 0), 1);
    EXPECT_LE(light(strip(left), -1), 1);
    EXPECT_GT(light(strip(right), 8), 15);
    EXPECT_LE(light(strip(right), -1), 1);

    view->resize(8000, 24);
    EXPECT_EQ(button(0)->width(), width);
    EXPECT_EQ(strip(left).maxOffset(), 0);
    EXPECT_GT(qGray(view->grab().toImage().pixel(inBar(strip(left)).left() + 8, 3)), 15);
    // Where nothing scrolls, a click may wander inside the button.
    test::Mouse mouse(*view);
    mouse.press(centre(*button(0)) - QPointF(30, 0));
    mouse.release(centre(*button(0)) + QPointF(30, 0));
    EXPECT_EQ(executed.size(), 1U);
}

TEST(ShortcutButtonView, TakesRoomOnlyForWhatItShowsAndSaysWhatItDoes) {
    const auto width = [](const QString& title, const QString& icon) {
        return ShortcutButtonView(ShortcutButton(title, icon, OpenUrl{})).sizeHint().width();
    };
    EXPECT_LT(width({}, u"globe"_s), width(u"Title"_s, u"globe"_s));
    EXPECT_EQ(width(u"Title"_s, u"no such symbol"_s), width(u"Title"_s, {}));
    EXPECT_EQ(width(u"a\nb"_s, {}), width(u"a b"_s, {}));
    EXPECT_EQ(width(u"W"_s.repeated(1000000), {}), 20 + 4096);

    ShortcutButtonView view(ShortcutButton({}, u"key"_s, OpenUrl{u"<b>x</b>"_s}));
    const auto* interface = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    EXPECT_EQ(interface->text(QAccessible::Name), displayName(OpenUrl{u"<b>x</b>"_s}));
    view.setShortcut(ShortcutButton(u"R&D <i>"_s, u"key"_s, OpenUrl{u"<b>x</b>"_s}));
    view.show();
    QHelpEvent request(QEvent::ToolTip, {5, 5}, view.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&view, &request);
    EXPECT_TRUE(QToolTip::text().contains(
        ToolTip::markup(u"R&D <i>\n"_s + displayName(OpenUrl{u"<b>x</b>"_s}))));
    QToolTip::hideText();
}

TEST(StandardLayout, TwoStripsShareTheRoomByNeed) {
    const struct {
        int room, left, right;
        StripWidths shared;
    } cases[] = {
        {100, 40, 60, {40, 60}},  {100, 20, 0, {20, 0}},    {100, 41, 60, {41, 59}},
        {100, 500, 30, {70, 30}}, {100, 50, 900, {50, 50}}, {101, 500, 900, {50, 51}},
        {100, 0, 900, {0, 100}},  {100, 900, 0, {100, 0}},  {0, 500, 900, {0, 0}},
    };
    for (const auto& [room, left, right, shared] : cases)
        EXPECT_EQ(sharedRoom(room, left, right), shared) << room << ' ' << left << ' ' << right;
}

} // namespace
} // namespace velmora
