#include "contract/panel/SessionTest.h"
#include "platform/x11/X11WindowActivation.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QVBoxLayout>

namespace velmora::test {
namespace {

class WindowActivationContract : public SessionTest {
protected:
    WindowActivationContract() {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        window.resize(300, 200);
    }

    bool isInFront() const {
        const auto id = static_cast<xcb_window_t>(window.winId());
        return inputFocus(client) == id && (!hasManager() || activeWindow(client) == id) &&
               window.isActiveWindow();
    }

    X11WindowActivation activation{*connection};
    QWidget window;
    QLineEdit* const field = new QLineEdit;
};

TEST_P(WindowActivationContract, NewHiddenCoveredAndMinimizedWindowsGetTheKeyboard) {
    Driver driver;
    driver.move(1000, 600);
    Witness first;
    driver.tapKey("AC01");
    first.markAsInUse();
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
    driver.tapKey("AC01");
    EXPECT_TRUE(waitFor([this] { return !field->text().isEmpty(); }));

    // Qt takes note of a lost focus with a delay.
    const auto isForgotten = [this] { return !isInFront() && !QGuiApplication::focusWindow(); };
    const Witness second(window.frameGeometry().adjusted(-20, -20, 20, 20));
    EXPECT_TRUE(waitFor(isForgotten));
    second.markAsInUse();
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
    // The second window is white.
    const QPoint corner = window.mapToGlobal(QPoint(3, 3));
    EXPECT_TRUE(waitFor([&] { return pixel(client, corner) != 0xffffffff; }));

    window.hide();
    EXPECT_TRUE(waitFor(isForgotten));
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));

    if (!hasManager())
        return;
    window.showMinimized();
    EXPECT_TRUE(waitFor(isForgotten));
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
}

TEST_P(WindowActivationContract, LastRequestWinsAndAClosedWindowIsForgotten) {
    const Witness front;
    auto closed = std::make_unique<QWidget>();
    activation.makeKeyAndOrderFront(*closed);
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
    activation.makeKeyAndOrderFront(*closed);
    closed.reset();
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
}

INSTANTIATE_TEST_SUITE_P(
    Sessions, WindowActivationContract, testing::ValuesIn(sessions()),
    [](const auto& session) { return QByteArray(session.param).replace('+', '_').toStdString(); });

} // namespace
} // namespace velmora::test
