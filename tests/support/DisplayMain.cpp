// main() of contract tests: a display with a window manager, and the application on it.

#include "support/TestDisplay.h"
#include "support/XErrors.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_CACHE_HOME", (home.path() + QStringLiteral("/cache")).toUtf8());
    // Without an address, a bus daemon would be started that outlives the test.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    velmora::test::TestDisplay display;
    display.startWindowManager(QStringLiteral("openbox"));
    qputenv("QT_QPA_PLATFORM", "xcb");
    velmora::test::failOnXErrors();
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
