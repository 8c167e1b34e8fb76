#include "overlay/OverlayPanel.h"

#include "overlay/ScreenManager.h"

#include <QWidget>

namespace velmora {

OverlayPanel::OverlayPanel(
    const ScreenManager& screenManager, Panels& panels, std::unique_ptr<QWidget> view)
    : screenManager_(screenManager), panel_(panels.create(std::move(view))) {
    connect(&screenManager.screens(), &Screens::changed, this, &OverlayPanel::request);
    request();
}

void OverlayPanel::setPresented(bool presented) {
    request_.presented = presented;
    panel_->request(request_);
}

void OverlayPanel::request() {
    request_.height = screenManager_.getMenuBarHeight();
    panel_->request(request_);
}

} // namespace velmora
