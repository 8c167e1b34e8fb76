#pragma once

#include "platform/PanelWindow.h"

#include <QWidget>
#include <memory>

namespace velmora {

/// The bar's window: borderless, over the menu-bar strip, on every workspace, never taking the
/// focus. On screen from its construction to its destruction; its geometry never changes. Main
/// thread only.
class OverlayPanel {
public:
    /// `contentRect` in points, bottom-left origin of the primary screen.
    OverlayPanel(PanelWindows& windows, const QRectF& contentRect)
        : window_(windows.create(contentRect)) {}

    /// Shown at first. Hidden it is transparent and lets every click through to what lies beneath;
    /// at once, without unmapping it.
    void setPresented(bool presented) { window_->setPresented(presented); }

    /// Fills the panel with `view`, which it owns from now on.
    void setContentView(std::unique_ptr<QWidget> view) { window_->setContentView(view.release()); }

private:
    std::unique_ptr<PanelWindow> window_;
};

} // namespace velmora
