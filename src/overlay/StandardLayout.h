#pragma once

#include "overlay/BarLayout.h"

namespace velmora {

class MenuButton;

/// The widths of the two strips in points.
struct StripWidths {
    int left;
    int right;

    bool operator==(const StripWidths&) const = default;
};

/// How two strips share `room` points when they need `left` and `right`: both get what they need if
/// it is there. Else one that needs less than half gets that, and the other one the rest; if both
/// need more, each gets half.
StripWidths sharedRoom(int room, int left, int right);

/// One row for a screen without a notch: menu button and left strip at the left end, right strip at
/// the right end. The strips are as wide as their buttons while all fit.
class StandardLayout : public BarLayout {
    Q_OBJECT
public:
    StandardLayout(ExecuteAction execute, QWidget* parent);

    static constexpr int spacing = 8;

protected:
    void placeStrips() override;

private:
    MenuButton* menuButton_;
};

} // namespace velmora
