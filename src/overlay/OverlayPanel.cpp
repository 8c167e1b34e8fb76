#include "overlay/OverlayPanel.h"

#include <QWidget>

namespace velmora {

OverlayPanel::OverlayPanel(PanelWindows& windows, const QRectF& contentRect)
    : window_(windows.create(contentRect, styleMask)) {
    window_->setLevel(level);
    window_->setCollectionBehavior(collectionBehavior);
    window_->setBackgroundColor(Qt::transparent);
    window_->setHasShadow(false);
    window_->setOpaque(false);
    window_->setIgnoresMouseEvents(false);
    window_->orderFrontRegardless();
}

void OverlayPanel::setContentView(std::unique_ptr<QWidget> view) {
    window_->setContentView(view.release());
}

} // namespace velmora
