#pragma once

#include "platform/PanelWindow.h"

#include <memory>

namespace velmora {

/// The bar's window: borderless, over the menu-bar strip, on every workspace, never taking the
/// focus. On screen from its construction to its destruction; its geometry never changes. Main
/// thread only.
class OverlayPanel {
public:
    /// Non-activating panel (0x80) with a full-size content view (0x8000).
    static constexpr unsigned styleMask = 0x8080;
    /// The status-window level.
    static constexpr int level = 25;
    /// Joins all spaces (0x1), may stand beside full-screen windows (0x100).
    static constexpr unsigned collectionBehavior = 0x101;

    /// `contentRect` in points, bottom-left origin of the primary screen.
    OverlayPanel(PanelWindows& windows, const QRectF& contentRect);

    /// 0.0 hides the panel, 1.0 shows it; at once, without unmapping it.
    void setAlphaValue(double alpha) { window_->setAlphaValue(alpha); }

    /// True lets every click through to what lies beneath.
    void setIgnoresMouseEvents(bool ignores) { window_->setIgnoresMouseEvents(ignores); }

    /// Fills the panel with `view`, which it owns from now on.
    void setContentView(std::unique_ptr<QWidget> view);

private:
    std::unique_ptr<PanelWindow> window_;
};

} // namespace velmora
