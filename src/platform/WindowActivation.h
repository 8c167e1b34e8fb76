#pragma once

class QWidget;

namespace velmora {

/// Bringing one of our ordinary windows forward.
class WindowActivation {
public:
    virtual ~WindowActivation() = default;

    /// Shows `window` in front of all others of its level and gives it the keyboard focus, whatever
    /// application is active now (makeKeyAndOrderFront: and activateIgnoringOtherApps:). From the
    /// first call on, a window that is blocked by a dialog of its own passes the focus on to that.
    virtual void makeKeyAndOrderFront(QWidget& window) = 0;
};

} // namespace velmora
