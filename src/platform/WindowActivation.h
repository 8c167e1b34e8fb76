#pragma once

class QWidget;

namespace velmora {

/// Bringing one of our ordinary windows forward.
class WindowActivation {
public:
    virtual ~WindowActivation() = default;

    /// Shows `window` in front of all others of its level and gives it the keyboard focus, whatever
    /// application is active now (makeKeyAndOrderFront: and activateIgnoringOtherApps:).
    virtual void makeKeyAndOrderFront(QWidget& window) = 0;
};

} // namespace velmora
