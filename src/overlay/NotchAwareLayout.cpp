#include "overlay/NotchAwareLayout.h"

#include "overlay/DraggableNSScrollView.h"

namespace velmora {

void NotchAwareLayout::placeStrips() {
    const int frame = static_cast<int>(width() * stripShare);
    const int stripHeight = height() - 2 * verticalPadding;
    leftStrip().setGeometry(0, verticalPadding, frame, stripHeight);
    rightStrip().setGeometry(
        width() - frame, verticalPadding, std::max(frame - trailingPadding, 0), stripHeight);
}

} // namespace velmora
