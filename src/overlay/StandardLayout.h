#pragma once

#include "overlay/BarLayout.h"

namespace velmora {

class MenuButton;

/// The largest common limit at which titles of these widths, each cut to it, lose at least `excess`
/// points in all; 0 when they are not wide enough.
int titleWidthLimit(QList<int> widths, int excess);

/// One row for a screen without a notch: menu button and left group at the left end, right group at
/// the right end. When they do not all fit, the longest titles are shortened first, down to symbols
/// alone; what is still too wide runs out of the bar on the right.
class StandardLayout : public BarLayout {
    Q_OBJECT
public:
    StandardLayout(ExecuteAction execute, QWidget* parent);

    void setShortcuts(const QList<ShortcutButton>& shortcuts) override;

    ButtonRow& leftRow() const { return *left_; }
    ButtonRow& rightRow() const { return *right_; }

    static constexpr int spacing = 8;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    MenuButton* menuButton_;
    ButtonRow* left_;
    ButtonRow* right_;
};

} // namespace velmora
