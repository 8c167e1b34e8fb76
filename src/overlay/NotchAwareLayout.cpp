#include "overlay/NotchAwareLayout.h"

#include "overlay/DraggableHorizontalScrollView.h"

namespace velmora {
namespace {

DraggableHorizontalScrollView
strip(bool hasMenuButton, const ExecuteAction& execute, QList<ShortcutButton> shortcuts = {}) {
    return {{hasMenuButton, std::move(shortcuts), execute, DraggableNSScrollView::dragThreshold}};
}

} // namespace

NotchAwareLayout::NotchAwareLayout(ExecuteAction action, QWidget* parent)
    : BarLayout(std::move(action), parent),
      left_(strip(true, execute).makeNSView(this)),
      right_(strip(false, execute).makeNSView(this)) {
    right_->setAlignment(DraggableNSScrollView::Alignment::trailing);
}

void NotchAwareLayout::setShortcuts(const QList<ShortcutButton>& shortcuts) {
    strip(true, execute, group(shortcuts, ButtonAlignment::left)).updateNSView(*left_);
    strip(false, execute, group(shortcuts, ButtonAlignment::right)).updateNSView(*right_);
}

void NotchAwareLayout::resizeEvent(QResizeEvent*) {
    const int frame = static_cast<int>(width() * stripShare);
    const int stripHeight = height() - 2 * verticalPadding;
    left_->setGeometry(0, verticalPadding, frame, stripHeight);
    right_->setGeometry(
        width() - frame, verticalPadding, std::max(frame - trailingPadding, 0), stripHeight);
}

} // namespace velmora
