#pragma once

#include "platform/x11/base/XInput.h"
#include "platform/x11/grants/X11Grab.h"
#include "platform/x11/keyboard/KeyLabels.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <QObject>

namespace velmora {

/// Every key of the session, before any other program and any passive grab, on behalf of the window
/// that has the focus. Grabbed on that window's own id: it sees no change of focus then.
class X11KeyboardGrab final : public X11Grab {
public:
    X11KeyboardGrab(
        X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput,
        const TapInterest::EveryKey& interest, Sink sink);
    ~X11KeyboardGrab() override;

    bool obtain() override;
    bool adopt(const EventTapInterest& interest) override;
    QString refusedName() const override;
    std::span<const std::chrono::milliseconds> pauses() const override;
    bool waitsForItsTurn() const override { return true; }

private:
    void giveBack();
    void followModifiers(bool follow);
    void handle(const xcb_generic_event_t& event);
    void handlePress(const xcb_input_key_press_event_t& press);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    XInput xinput_;
    QPointer<QWidget> view_;
    Sink sink_;
    xcb_window_t window_ = XCB_WINDOW_NONE; ///< while the keyboard is ours
    KeyLabels labels_;
    QObject context_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora
