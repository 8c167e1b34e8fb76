#include "contract/panel/SessionTest.h"

#include "support/XErrors.h"

#include <QApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace velmora::test {

TestDisplay* display = nullptr;

std::vector<const char*> sessions() {
    return {"none", "openbox", "xfwm4", "openbox+picom"};
}

SessionTest::SessionTest() {
    for (const QString& name : QString::fromLatin1(GetParam()).split(u'+')) {
        if (name == u"none")
            continue;
        if (managers_.empty()) {
            managers_.push_back(&display->startWindowManager(name));
            continue;
        }
        managers_.push_back(&display->start(name, {u"--backend"_s, u"xrender"_s}));
        const xcb_atom_t selection = client.atom("_NET_WM_CM_S0");
        EXPECT_TRUE(waitFor([&] {
            const Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
                client, xcb_get_selection_owner(client, selection), nullptr));
            return owner && owner->owner != XCB_NONE;
        }));
    }
}

SessionTest::~SessionTest() {
    for (auto manager = managers_.rbegin(); manager != managers_.rend(); ++manager) {
        (*manager)->terminate();
        (*manager)->waitForFinished();
    }
    xcb_delete_property(client, client.root(), client.atom("_NET_SUPPORTING_WM_CHECK"));
    EXPECT_TRUE(waitFor([this] { return !hasWindowManager(client); }));
}

} // namespace velmora::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + u"/config"_s).toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("XDG_SESSION_TYPE");
    qunsetenv("WAYLAND_DISPLAY");
    velmora::test::TestDisplay display(
        velmora::test::displaySize.width(), velmora::test::displaySize.height());
    velmora::test::display = &display;
    velmora::test::failOnXErrors();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
