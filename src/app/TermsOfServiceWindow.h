#pragma once

#include <functional>
#include <memory>

class QWidget;

namespace velmora {

class UserDefaults;
class WindowActivation;

/// Shows the terms until the user agrees. Main thread only.
class TermsOfServiceWindow {
public:
    /// The process-wide instance over the current platform, never destroyed.
    static TermsOfServiceWindow& shared();

    TermsOfServiceWindow(UserDefaults& defaults, WindowActivation& activation);
    ~TermsOfServiceWindow();

    /// Shows the window, or brings it forward when it is there. `onAgree` replaces an earlier
    /// completion and runs once, after the agreement was stored and the window has closed.
    void show(std::function<void()> onAgree);

    /// The window while it exists.
    QWidget* window() const { return window_.get(); }

private:
    void handleAgree();

    UserDefaults& defaults_;
    WindowActivation& activation_;
    std::unique_ptr<QWidget> window_;
    std::function<void()> onAgreeCallback_;
};

} // namespace velmora
