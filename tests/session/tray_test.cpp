// The status item in trays of both kinds, used as a user would.

#include "session/Session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// A panel with nothing but a tray, at the bottom of the screen.
constexpr auto xfcePanel = R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=8;x=500;y=700"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";

enum class Kind { Embedding, Describing };

/// A session with a tray of some kind, and the program.
class Tray : public testing::TestWithParam<Kind> {
protected:
    Tray() {
        session.writeFile(u".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml"_s, xfcePanel);
    }

    void startTray() {
        const QStringList alongTheBottom{u"--edge"_s,   u"bottom"_s, u"--align"_s,     u"left"_s,
                                         u"--expand"_s, u"true"_s,   u"--widthtype"_s, u"percent"_s,
                                         u"--width"_s,  u"100"_s};
        tray_ = GetParam() == Kind::Embedding
                    ? &session.display().start(u"trayer"_s, alongTheBottom, session.environment())
                    : &session.display().start(u"xfce4-panel"_s, {}, session.environment());
    }
    void endTray() {
        tray_->terminate();
        ASSERT_TRUE(tray_->waitForFinished());
    }

    /// Where the icon is: its ground is the only blue of the lower half of the screen.
    std::optional<QPoint> item() {
        const QImage image = screenshot(session.client());
        QRect blue;
        for (int y = image.height() / 2; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor color(image.pixel(x, y));
                if (color.blue() > 200 && color.red() < 110 && color.green() < 160)
                    blue |= QRect(x, y, 1, 1);
            }
        return blue.width() >= 12 && blue.width() <= 30 ? std::optional(blue.center())
                                                        : std::nullopt;
    }
    bool waitForItem() {
        return waitFor([this] { return item().has_value(); }, 20000);
    }

    /// The open menu, the program's own or one that the tray draws.
    std::optional<TopWindow> menu() {
        for (const TopWindow& window : topWindows(session.client()))
            if (window.overrideRedirect && window.mapped && window.geometry.width() > 200 &&
                window.geometry.height() > 60 && window.geometry.height() < 200)
                return window;
        return std::nullopt;
    }

    /// Clicks the item until its menu is there: a tray may still be arranging itself.
    bool openMenu(uint8_t button) {
        return waitFor([&] {
            const auto place = item();
            if (!place)
                return false;
            session.driver().move(place->x(), place->y());
            const QImage before = screenshot(session.client());
            session.driver().click(button);
            // It draws itself only when it has the keyboard.
            return waitFor(
                [&] {
                    const auto window = menu();
                    return window && screenshot(session.client(), window->geometry) !=
                                         before.copy(window->geometry);
                },
                1000);
        });
    }
    Session session{
        {.screen = {1000, 700},
         .windowManager = GetParam() == Kind::Embedding ? u"openbox"_s : u"xfwm4"_s,
         .hasBus = true}};

private:
    QProcess* tray_ = nullptr;
};

TEST_P(Tray, HasTheItemWheneverItComes) {
    session.launch();
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(item());
        startTray();
        EXPECT_TRUE(waitForItem()) << round;
        endTray();
        EXPECT_TRUE(waitFor([this] { return !item(); }));
    }
}

TEST_P(Tray, HasAMenuForPointerAndKeys) {
    startTray();
    session.launch();
    ASSERT_TRUE(waitForItem());
    for (const uint8_t button : {1, 3}) {
        for (const QByteArray by : {"pointer", "DOWN RTRN", "ESC"}) {
            SCOPED_TRACE(by.toStdString() + char('0' + button));
            ASSERT_TRUE(openMenu(button));
            const QRect place = menu()->geometry;
            if (by == "pointer") {
                session.driver().move(place.left() + 60, place.top() + 18);
                session.driver().click();
            } else {
                for (const QByteArray& key : by.split(' '))
                    session.driver().tapKey(key);
            }
            // The first entry hides the bar and shows it again.
            EXPECT_TRUE(waitFor([&] { return session.isBarShown() == (by != "pointer"); }));
            EXPECT_TRUE(waitFor([this] { return !menu() && isKeyboardFree(session.client()); }));
        }
    }
    ASSERT_TRUE(openMenu(1));
    session.driver().tapChord("LCTL", "AD01"); // Ctrl+Q
    EXPECT_TRUE(waitFor([this] { return !session.program().isRunning(); }));
    EXPECT_TRUE(waitFor([this] { return !item(); }));
}

TEST_P(Tray, OpensTheSettingsBeforeAnotherApplication) {
    startTray();
    session.launch();
    ASSERT_TRUE(waitForItem());
    session.expectSettingsInFront([this] {
        ASSERT_TRUE(openMenu(1));
        for (const char* const key : {"DOWN", "DOWN", "RTRN"})
            session.driver().tapKey(key);
    });
}

/// The bus's list of trays and items, as a desktop runs it before any tray draws.
class TrayList : public QDBusVirtualObject {
public:
    static constexpr auto service = "org.kde.StatusNotifierWatcher"_L1;
    static constexpr auto path = "/StatusNotifierWatcher"_L1;

    bool hasHost = false;
    int questions = 0; ///< for a host, answered
    int items = 0;     ///< that registered

    QString introspect(const QString&) const override {
        return u"<interface name='%1'><property name='IsStatusNotifierHostRegistered' type='b' "
               "access='read'/></interface>"_s.arg(service);
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == "RegisterStatusNotifierItem"_L1) {
            ++items;
            return bus.send(message.createReply());
        }
        if (message.member() != "Get"_L1)
            return false;
        ++questions;
        return bus.send(
            message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(hasHost)))));
    }
};

TEST(TrayOnTheBus, IsWaitedForUntilItHasAHost) {
    Session session({.hasBus = true});
    QDBusConnection bus = QDBusConnection::connectToBus(session.busAddress(), u"desktop"_s);
    TrayList list;
    ASSERT_TRUE(bus.registerVirtualObject(list.path, &list) && bus.registerService(list.service));
    session.launch();
    const auto announceHost = [&] {
        bus.send(
            QDBusMessage::createSignal(list.path, list.service, u"StatusNotifierHostRegistered"_s));
    };
    ASSERT_TRUE(waitFor([&] { return list.questions == 1; }));
    announceHost(); // one that has gone again
    ASSERT_TRUE(waitFor([&] { return list.questions == 2; })) << "the first answer has been read";
    EXPECT_EQ(list.items, 0);
    list.hasHost = true;
    announceHost();
    EXPECT_TRUE(waitFor([&] { return list.items == 1; }));
    session.program().end();
    QDBusConnection::disconnectFromBus(u"desktop"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Trays, Tray, testing::Values(Kind::Embedding, Kind::Describing),
    [](const testing::TestParamInfo<Kind>& given) {
        return given.param == Kind::Embedding ? "Embedding" : "Describing";
    });

} // namespace
