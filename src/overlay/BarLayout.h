#pragma once

#include "overlay/ButtonRow.h"

namespace velmora {

class DraggableNSScrollView;

/// One way to arrange the buttons in the bar: a strip for each side, whose buttons hug that end.
class BarLayout : public QWidget {
public:
    /// Shows the buttons, given in store order.
    void setShortcuts(const QList<ShortcutButton>& shortcuts);

    DraggableNSScrollView& leftStrip() const { return *left_; }
    DraggableNSScrollView& rightStrip() const { return *right_; }

    static constexpr int verticalPadding = 4;
    static constexpr int trailingPadding = 12;

protected:
    /// The left strip begins with the menu button if `menuButtonInStrip`.
    BarLayout(ExecuteAction execute, bool menuButtonInStrip, QWidget* parent);

    /// Places the strips in the layout's size; called again when that or their content changes.
    virtual void placeStrips() = 0;

    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    const ExecuteAction execute_;
    const bool menuButtonInStrip_;
    DraggableNSScrollView* left_;
    DraggableNSScrollView* right_;
};

} // namespace velmora
