// The status item in trays of both kinds, used as a user would.

#include "session/Session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <gmock/gmock.h>
#include <stdexcept>

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

/// A session with a bus of its own, a tray of some kind, and the program.
class Tray : public testing::TestWithParam<Kind> {
protected:
    Tray() {
        session.writeFile(u".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml"_s, xfcePanel);
        // What it starts, the panel's settings service, finds this home and this display.
        bus_.setProcessEnvironment(session.environment());
        bus_.start(
            u"dbus-daemon"_s,
            {u"--session"_s, u"--nofork"_s, u"--print-address"_s, u"--address="_s + busAddress_});
        if (!waitFor([this] { return bus_.canReadLine(); }))
            throw std::runtime_error("no bus");
    }
    ~Tray() override {
        end(tray_);
        session.program().end();
        end(bus_);
    }

    void startTray() {
        tray_.setProcessEnvironment(session.environment());
        if (GetParam() == Kind::Embedding)
            tray_.start(
                u"trayer"_s, {u"--edge"_s, u"bottom"_s, u"--align"_s, u"left"_s, u"--expand"_s,
                              u"true"_s, u"--widthtype"_s, u"percent"_s, u"--width"_s, u"100"_s});
        else
            tray_.start(u"xfce4-panel"_s, QStringList{});
        ASSERT_TRUE(tray_.waitForStarted());
    }
    void endTray() { end(tray_); }

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
    bool waitForNoMenu() {
        return waitFor([this] { return !menu() && isKeyboardFree(session.client()); });
    }

private:
    QTemporaryDir busFolder_;
    const QString busAddress_ = u"unix:path="_s + busFolder_.path() + u"/bus"_s;

protected:
    Session session{
        {.screen = {1000, 700},
         .windowManager = GetParam() == Kind::Embedding ? u"openbox"_s : u"xfwm4"_s,
         .environment = {u"DBUS_SESSION_BUS_ADDRESS="_s + busAddress_}}};

private:
    static void end(QProcess& process) {
        process.terminate();
        if (!process.waitForFinished(5000))
            process.kill();
        process.waitForFinished(5000);
    }

    QProcess bus_;
    QProcess tray_;
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
        SCOPED_TRACE(int(button));
        ASSERT_TRUE(openMenu(button));
        const QRect place = menu()->geometry;
        session.driver().move(place.left() + 60, place.top() + 18);
        session.driver().click();
        EXPECT_TRUE(waitFor([this] { return !session.isBarShown(); }))
            << "the first entry hides the bar";
        EXPECT_TRUE(waitForNoMenu());

        ASSERT_TRUE(openMenu(button));
        session.driver().tapKey("DOWN");
        session.driver().tapKey("RTRN");
        EXPECT_TRUE(waitFor([this] { return session.isBarShown(); })) << "and shows it again";
        EXPECT_TRUE(waitForNoMenu());

        ASSERT_TRUE(openMenu(button));
        session.driver().tapKey("ESC");
        EXPECT_TRUE(waitForNoMenu());
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
    const QTemporaryDir folder;
    const QString address = u"unix:path="_s + folder.path() + u"/bus"_s;
    Session session({.environment = {u"DBUS_SESSION_BUS_ADDRESS="_s + address}});
    QProcess& daemon = session.display().start(
        u"dbus-daemon"_s,
        {u"--session"_s, u"--nofork"_s, u"--print-address"_s, u"--address="_s + address});
    ASSERT_TRUE(waitFor([&] { return daemon.canReadLine(); }));
    QDBusConnection bus = QDBusConnection::connectToBus(address, u"desktop"_s);
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
