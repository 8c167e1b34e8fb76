#pragma once

#include "overlay/BarLayout.h"

namespace velmora {

/// A strip of buttons on each side of the notch; the left one begins with the menu button.
class NotchAwareLayout : public BarLayout {
    Q_OBJECT
public:
    NotchAwareLayout(ExecuteAction execute, QWidget* parent)
        : BarLayout(std::move(execute), true, parent) {}

    /// The part of the bar's width that each strip takes at most.
    static constexpr double stripShare = 0.43;

protected:
    void placeStrips() override;
};

} // namespace velmora
