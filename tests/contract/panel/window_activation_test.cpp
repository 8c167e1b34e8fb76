#include "contract/panel/SessionTest.h"
#include "platform/x11/session/X11WindowActivation.h"

#include <QGuiApplication>
#include <QWidget>
#include <optional>

namespace velmora::test {
namespace {

class WindowActivationContract : public SessionTest {
protected:
    WindowActivationContract() { window.resize(300, 200); }

    bool isInFront() const {
        const auto id = static_cast<xcb_window_t>(window.winId());
        return inputFocus(client) == id && (!hasManager() || activeWindow(client) == id) &&
               window.isActiveWindow();
    }

    void comesToTheFront() {
        activation.makeKeyAndOrderFront(window);
        EXPECT_TRUE(waitFor([this] { return isInFront(); }));
    }

    X11WindowActivation activation{*connection};
    QWidget window;
};

TEST_P(WindowActivationContract, NewHiddenCoveredAndMinimizedWindowsGetTheKeyboard) {
    Driver driver;
    driver.move(1000, 600);
    Witness first;
    driver.tapKey("AC01");
    first.markAsInUse();
    comesToTheFront();

    std::optional<Witness> second;
    for (int way = 0; way < (hasManager() ? 3 : 2); ++way) {
        if (way == 0)
            second.emplace(window.frameGeometry().adjusted(-20, -20, 20, 20)).markAsInUse();
        else if (way == 1)
            window.hide();
        else
            window.showMinimized();
        // Qt takes note of a lost focus with a delay.
        EXPECT_TRUE(waitFor([this] { return !isInFront() && !QGuiApplication::focusWindow(); }));
        comesToTheFront();
        // The second window is white.
        const QPoint corner = window.mapToGlobal(QPoint(3, 3));
        EXPECT_TRUE(waitFor([&] { return pixel(client, corner) != 0xffffffff; }));
    }

    // The last request wins, and a closed window is forgotten.
    auto closed = std::make_unique<QWidget>();
    activation.makeKeyAndOrderFront(*closed);
    comesToTheFront();
    activation.makeKeyAndOrderFront(*closed);
    closed.reset();
    comesToTheFront();
}

INSTANTIATE_TEST_SUITE_P(
    Sessions, WindowActivationContract, testing::ValuesIn(sessions()),
    [](const auto& session) { return QByteArray(session.param).replace('+', '_').toStdString(); });

} // namespace
} // namespace velmora::test
