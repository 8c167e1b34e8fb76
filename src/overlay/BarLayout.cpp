#include "overlay/BarLayout.h"

#include "overlay/DraggableHorizontalScrollView.h"

namespace velmora {
namespace {

QList<ShortcutButton> group(QList<ShortcutButton> shortcuts, ButtonAlignment side) {
    shortcuts.removeIf([side](const ShortcutButton& button) { return button.alignment != side; });
    return shortcuts;
}

} // namespace

BarLayout::BarLayout(ExecuteAction execute, bool menuButtonInStrip, QWidget* parent)
    : QWidget(parent),
      execute_(std::move(execute)),
      menuButtonInStrip_(menuButtonInStrip),
      left_(DraggableHorizontalScrollView{{menuButtonInStrip_, {}, execute_}}.makeNSView(this)),
      right_(DraggableHorizontalScrollView{{false, {}, execute_}}.makeNSView(this)) {
    right_->setAlignment(DraggableNSScrollView::Alignment::trailing);
}

void BarLayout::setShortcuts(const QList<ShortcutButton>& shortcuts) {
    const auto show = [&](DraggableNSScrollView& strip, bool hasMenuButton, ButtonAlignment side) {
        DraggableHorizontalScrollView{{hasMenuButton, group(shortcuts, side), execute_}}
            .updateNSView(strip);
    };
    show(*left_, menuButtonInStrip_, ButtonAlignment::left);
    show(*right_, false, ButtonAlignment::right);
    layOut();
}

void BarLayout::resizeEvent(QResizeEvent*) {
    layOut();
}

void BarLayout::layOut() {
    placeStrips();
    for (const DraggableNSScrollView* strip : {left_, right_}) {
        // Where nothing scrolls, a click may wander inside its button.
        std::optional<double> threshold;
        if (strip->maxOffset() > 0)
            threshold = DraggableNSScrollView::dragThreshold;
        static_cast<ButtonRow*>(strip->documentView())->setDragThreshold(threshold);
    }
}

} // namespace velmora
