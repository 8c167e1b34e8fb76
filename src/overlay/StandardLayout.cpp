#include "overlay/StandardLayout.h"

#include "overlay/DraggableNSScrollView.h"
#include "overlay/MenuButton.h"

#include <algorithm>

namespace velmora {

StripWidths sharedRoom(int room, int left, int right) {
    const int leftShare = std::min(left, std::max(room / 2, room - right));
    return {leftShare, std::min(right, room - leftShare)};
}

StandardLayout::StandardLayout(ExecuteAction execute, QWidget* parent)
    : BarLayout(std::move(execute), false, parent), menuButton_(new MenuButton(this)) {
    menuButton_->lower(); // assistive programs tell it first
}

void StandardLayout::placeStrips() {
    const QSize menu = menuButton_->sizeHint();
    const int leftX = menu.width() + spacing;
    // Spacing on both sides of a gap that is itself as wide.
    const int room = std::max(width() - leftX - 3 * spacing - trailingPadding, 0);
    const auto [left, right] =
        sharedRoom(room, leftStrip().documentView()->width(), rightStrip().documentView()->width());
    menuButton_->setGeometry({QPoint(0, (height() - menu.height()) / 2), menu});
    leftStrip().setGeometry(leftX, 0, left, height());
    rightStrip().setGeometry(width() - trailingPadding - right, 0, right, height());
}

} // namespace velmora
