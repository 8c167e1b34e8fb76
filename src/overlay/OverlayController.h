#pragma once

#include "overlay/OverlayPanel.h"

#include <QObject>
#include <memory>

namespace velmora {

class Preferences;
class ScreenManager;

/// Makes the bar's panel once at start-up and shows or hides it on request. Held weakly through
/// QPointer. Main thread only.
class OverlayController : public QObject {
    Q_OBJECT

public:
    /// Makes no window yet. All of them outlive the controller.
    OverlayController(
        const ScreenManager& screenManager, const Preferences& preferences, Panels& panels);

    /// Puts a panel filled with `view` over the menu-bar strip of the primary screen, in place of
    /// any earlier one.
    void setup(std::unique_ptr<QWidget> view);

    /// Flips the bar between shown and hidden (transparent and click-through, never unmapped).
    /// Nothing happens before setup().
    void toggleOverlay();

    std::unique_ptr<OverlayPanel> panel; ///< absent before setup()
    bool isOverlayVisible = true;

private:
    const ScreenManager& screenManager_;
    const Preferences& preferences_;
    Panels& panels_;
};

} // namespace velmora
