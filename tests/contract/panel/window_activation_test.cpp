#include "contract/panel/SessionTest.h"
#include "platform/x11/X11WindowActivation.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QVBoxLayout>

namespace velmora::test {
namespace {

/// Marks `window` as one that the user works in at this moment, as toolkits do at each key press:
/// what makes window managers keep other windows from the focus.
void markAsInUse(const XClient& client, xcb_window_t window) {
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(client, window, XCB_CW_EVENT_MASK, &events);
    const xcb_atom_t property = client.atom("_NET_WM_USER_TIME");
    const auto change = [&](uint8_t mode, uint32_t length, const uint32_t* time) {
        xcb_change_property(client, mode, window, property, XCB_ATOM_CARDINAL, 32, length, time);
        xcb_flush(client);
    };
    change(XCB_PROP_MODE_APPEND, 0, nullptr);
    const Reply<xcb_generic_event_t> event(xcb_wait_for_event(client));
    const uint32_t now = reinterpret_cast<const xcb_property_notify_event_t&>(*event).time;
    change(XCB_PROP_MODE_REPLACE, 1, &now);
    client.sync();
}

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
    markAsInUse(XClient(), first.window());
    activation.makeKeyAndOrderFront(window);
    EXPECT_TRUE(waitFor([this] { return isInFront(); }));
    driver.tapKey("AC01");
    EXPECT_TRUE(waitFor([this] { return !field->text().isEmpty(); }));

    // Qt takes note of a lost focus with a delay.
    const auto isForgotten = [this] { return !isInFront() && !QGuiApplication::focusWindow(); };
    const Witness second(window.frameGeometry().adjusted(-20, -20, 20, 20));
    EXPECT_TRUE(waitFor(isForgotten));
    markAsInUse(XClient(), second.window());
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
