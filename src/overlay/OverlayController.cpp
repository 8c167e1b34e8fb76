#include "overlay/OverlayController.h"

#include "overlay/ScreenManager.h"

#include <QWidget>

namespace velmora {

OverlayController::OverlayController(const ScreenManager& screenManager, PanelWindows& panelWindows)
    : screenManager_(screenManager), panelWindows_(panelWindows) {}

void OverlayController::setup(std::unique_ptr<QWidget> view) {
    const double height = screenManager_.getMenuBarHeight();
    const QRectF frame = screenManager_.getScreenFrame();
    // The primary screen's lower-left corner is the global origin: no offset.
    auto newPanel = std::make_unique<OverlayPanel>(
        panelWindows_, QRectF(0, frame.height() - height, frame.width(), height));
    newPanel->setContentView(std::move(view));
    panel = std::move(newPanel);
}

void OverlayController::toggleOverlay() {
    if (!panel)
        return;
    isOverlayVisible = !isOverlayVisible;
    panel->setPresented(isOverlayVisible);
}

} // namespace velmora
