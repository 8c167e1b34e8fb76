#include "overlay/NotchAwareLayout.h"

#include "overlay/DraggableHorizontalScrollView.h"

namespace velmora {
namespace {

using Strip = DraggableHorizontalScrollView<ButtonRow>;

ButtonRow::RootView row(const ExecuteAction& execute, QList<ShortcutButton> shortcuts = {}) {
    return {false, std::move(shortcuts), execute, DraggableNSScrollView::dragThreshold};
}

ButtonRow::RootView
rowWithMenuButton(const ExecuteAction& execute, QList<ShortcutButton> shortcuts = {}) {
    ButtonRow::RootView content = row(execute, std::move(shortcuts));
    content.hasMenuButton = true;
    return content;
}

} // namespace

NotchAwareLayout::NotchAwareLayout(ExecuteAction action, QWidget* parent)
    : BarLayout(std::move(action), parent),
      left_(Strip([this] { return rowWithMenuButton(execute); }).makeNSView(this)),
      right_(Strip([this] { return row(execute); }).makeNSView(this)) {
    right_->setAlignment(DraggableNSScrollView::Alignment::trailing);
}

void NotchAwareLayout::setShortcuts(const QList<ShortcutButton>& shortcuts) {
    Strip([&] {
        return rowWithMenuButton(execute, group(shortcuts, ButtonAlignment::left));
    }).updateNSView(*left_);
    Strip([&] {
        return row(execute, group(shortcuts, ButtonAlignment::right));
    }).updateNSView(*right_);
}

void NotchAwareLayout::resizeEvent(QResizeEvent*) {
    const int frame = static_cast<int>(width() * stripShare);
    const int stripHeight = height() - 2 * verticalPadding;
    left_->setGeometry(0, verticalPadding, frame, stripHeight);
    right_->setGeometry(
        width() - frame, verticalPadding, std::max(frame - trailingPadding, 0), stripHeight);
}

} // namespace velmora
