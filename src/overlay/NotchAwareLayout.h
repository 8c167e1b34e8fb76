#pragma once

#include "overlay/BarLayout.h"

namespace velmora {

class DraggableNSScrollView;

/// A strip of buttons on each side of the notch: the left one, which begins with the menu button,
/// hugs the left end of the bar, the right one the right end.
class NotchAwareLayout : public BarLayout {
    Q_OBJECT
public:
    NotchAwareLayout(ExecuteAction execute, QWidget* parent);

    void setShortcuts(const QList<ShortcutButton>& shortcuts) override;

    DraggableNSScrollView& leftStrip() const { return *left_; }
    DraggableNSScrollView& rightStrip() const { return *right_; }

    /// The part of the bar's width that each strip takes at most.
    static constexpr double stripShare = 0.43;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    DraggableNSScrollView* left_;
    DraggableNSScrollView* right_;
};

} // namespace velmora
