#include "overlay/OverlayController.h"

#include <QWidget>

namespace velmora {

OverlayController::OverlayController(
    const ScreenManager& screenManager, const Preferences& preferences, Panels& panels)
    : screenManager_(screenManager), preferences_(preferences), panels_(panels) {}

void OverlayController::setup(std::unique_ptr<QWidget> view) {
    panel = std::make_unique<OverlayPanel>(screenManager_, preferences_, panels_, std::move(view));
}

void OverlayController::toggleOverlay() {
    if (!panel)
        return;
    isOverlayVisible = !isOverlayVisible;
    panel->setPresented(isOverlayVisible);
}

} // namespace velmora
