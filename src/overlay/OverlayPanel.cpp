#include "overlay/OverlayPanel.h"

#include "model/Preferences.h"
#include "overlay/ScreenManager.h"

#include <QWidget>

namespace velmora {

OverlayPanel::OverlayPanel(
    const ScreenManager& screenManager, const Preferences& preferences, Panels& panels,
    std::unique_ptr<QWidget> view)
    : screenManager_(screenManager),
      preferences_(preferences),
      panel_(panels.create(std::move(view))) {
    connect(&screenManager.screens(), &Screens::changed, this, &OverlayPanel::request);
    connect(&preferences, &Preferences::changed, this, &OverlayPanel::request);
    request();
}

void OverlayPanel::setPresented(bool presented) {
    request_.presented = presented;
    panel_->request(request_);
}

void OverlayPanel::request() {
    // Beside a cut-out nothing else can lie, and there the bar's content suits it.
    const bool atTopEdge = screenManager_.hasNotch() || preferences_.barAtTopEdge();
    request_.height = screenManager_.getMenuBarHeight();
    request_.belowDocks = !atTopEdge;
    request_.reservesStrip = preferences_.keepsWindowsBelow();
    panel_->request(request_);
}

} // namespace velmora
