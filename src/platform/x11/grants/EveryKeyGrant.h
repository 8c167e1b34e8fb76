#pragma once

#include "platform/InputGrants.h"
#include "platform/x11/base/XInput.h"
#include "platform/x11/grants/Retries.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <QPointer>
#include <QWidget>

namespace velmora {

/// Every key of the session, before any other program and any passive grab, on behalf of the window
/// that has the focus. Grabbed on that window's own id: it sees no change of focus then.
/// Asynchronous: whatever this process does, the user's keyboard is never frozen.
class EveryKeyGrant final : public InputGrant {
public:
    EveryKeyGrant(
        X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput, QWidget& view,
        InputGrants::KeyHandler handler);
    ~EveryKeyGrant() override;

private:
    void obtain();
    bool grab(xcb_window_t window);
    void followModifiers(bool follow);
    void handle(const xcb_generic_event_t& event);
    void handlePress(const xcb_input_key_press_event_t& press);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    const XInput xinput_;
    const QPointer<QWidget> view_;
    const InputGrants::KeyHandler handler_;
    xcb_window_t window_ = XCB_WINDOW_NONE; ///< while the keyboard is ours
    Retries retries_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora
