#include "app/StatusBarController.h"

#include "app/StatusItemIcon.h"
#include "overlay/ScreenManager.h"
#include "support/FakePanelWindows.h"
#include "support/FakeScreens.h"
#include "support/FakeTrayHost.h"
#include "support/TestDisplay.h"
#include "viewkit/PopupMenu.h"

#include <QPainter>
#include <QSystemTrayIcon>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using test::waitFor;
using testing::ElementsAre;

class StatusBarControllerTest : public testing::Test {
protected:
    /// Brings the controller up as far as a tray that is there takes it.
    void install() {
        controller.setupStatusBar();
        QWidget window;
        window.show();
        ASSERT_TRUE(waitFor([this] { return bool(trayHost.arrive); }));
        trayHost.arrive();
        ASSERT_TRUE(controller.statusItem);
    }

    test::FakeTrayHost trayHost;
    int settingsShown = 0;
    StatusBarController controller{trayHost, [this] { ++settingsShown; }};
};

TEST_F(StatusBarControllerTest, LooksForATrayAfterAPaintAndTakesItWhenItComes) {
    controller.setupStatusBar();
    EXPECT_FALSE(trayHost.arrive);
    QWidget window;
    window.show();
    ASSERT_TRUE(waitFor([this] { return bool(trayHost.arrive); }, 900));
    EXPECT_FALSE(controller.statusItem);
    trayHost.arrive();
    ASSERT_TRUE(controller.statusItem);
    EXPECT_EQ(controller.statusItem->toolTip(), u"Velmora - クリックして切り替え"_s);
}

TEST_F(StatusBarControllerTest, LooksForATrayEvenIfNothingIsEverPainted) {
    controller.setupStatusBar();
    EXPECT_TRUE(waitFor([this] { return bool(trayHost.arrive); }, 5000));
}

TEST_F(StatusBarControllerTest, HasThreeEntriesWithSeparators) {
    install();
    QStringList entries;
    for (const QAction* action : controller.menu()->actions())
        entries
            << (action->isSeparator() ? u"-"_s
                                      : action->text() + u'|' + action->shortcut().toString());
    EXPECT_THAT(
        entries, ElementsAre(
                     u"メニューバーを切り替え (Option+M)|"_s, u"-"_s, u"設定...|Ctrl+,"_s, u"-"_s,
                     u"終了|Ctrl+Q"_s));
    EXPECT_EQ(controller.statusItem->contextMenu(), controller.menu());
    EXPECT_EQ(controller.menu()->accessibleName(), u"Velmora"_s);
}

TEST_F(StatusBarControllerTest, OnlyAPlainClickOpensTheMenuItself) {
    install();
    PopupMenu& menu = *controller.menu();
    // The tray opens the menu by the right button, or draws its own.
    Q_EMIT controller.statusItem->activated(QSystemTrayIcon::Context);
    EXPECT_FALSE(menu.isVisible());
    Q_EMIT controller.statusItem->activated(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(menu.isVisible());
    menu.hide();
}

TEST_F(StatusBarControllerTest, EntriesReachWhatTheyName) {
    install();
    const auto choose = [this](int entry) { controller.menu()->actions()[entry]->trigger(); };
    choose(0); // no bar yet
    test::FakeScreens screens;
    const ScreenManager screenManager(screens);
    test::FakePanelWindows panelWindows;
    {
        OverlayController overlay(screenManager, panelWindows);
        overlay.setup(std::make_unique<QWidget>());
        controller.overlayController = &overlay;
        const bool before = overlay.isOverlayVisible;
        choose(0);
        EXPECT_NE(overlay.isOverlayVisible, before);
        EXPECT_EQ(settingsShown, 0);
    }
    choose(0); // the bar has gone
    choose(2);
    EXPECT_EQ(settingsShown, 1);
}

TEST(StatusItemIcon, IsEighteenPointsWithOrWithoutAFile) {
    const QTemporaryDir folder;
    const QString square = folder.path() + u"/square.png"_s;
    QImage red(72, 72, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(square));
    const QString broken = folder.path() + u"/broken.png"_s;
    {
        QFile file(broken);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("not a picture");
    }
    struct Case {
        std::optional<QString> path;
        bool isFromFile;
    };
    for (const Case& given : {Case{square, true}, Case{broken, false}, Case{std::nullopt, false}}) {
        SCOPED_TRACE(given.path.value_or(u"none"_s).toStdString());
        const QIcon icon = statusItemIcon(given.path);
        const QImage image = icon.pixmap(36, 36).toImage();
        EXPECT_EQ(image.size(), QSize(36, 36));
        EXPECT_EQ(image.pixelColor(18, 1) == QColor(Qt::red), given.isFromFile);
        // In a larger cell.
        QImage cell(24, 24, QImage::Format_ARGB32_Premultiplied);
        cell.fill(Qt::transparent);
        QPainter painter(&cell);
        icon.paint(&painter, cell.rect());
        EXPECT_EQ(cell.pixelColor(12, 2).alpha(), 0);
        EXPECT_EQ(cell.pixelColor(12, 3).alpha(), 255);
        EXPECT_EQ(cell.pixelColor(20, 12).alpha(), 255);
        EXPECT_EQ(cell.pixelColor(21, 12).alpha(), 0);
    }
}

} // namespace
} // namespace velmora
