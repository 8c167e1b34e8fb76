#pragma once

#include "platform/Screens.h"

#include <QMarginsF>
#include <QRectF>
#include <optional>

namespace velmora {

/// The room beside the notch: widths in points.
struct NotchSafeZones {
    double left = 0;
    double right = 0;

    bool operator==(const NotchSafeZones&) const = default;
};

/// Answers every geometric question about the screen that the bar lives on. Stores nothing: each
/// query asks for the primary screen anew. Points, bottom-left origin. Main thread only.
class ScreenManager {
public:
    explicit ScreenManager(const Screens& screens) : screens_(screens) {}
    ScreenManager(const ScreenManager&) = delete;
    ScreenManager& operator=(const ScreenManager&) = delete;

    /// The process-wide instance over the session's screens.
    static ScreenManager& shared();

    /// Tells when what follows from them may have changed.
    const Screens& screens() const { return screens_; }

    /// Absent when the session reports no screen.
    std::optional<Screen> getPrimaryScreen() const;

    /// All zero without a screen.
    QMarginsF getSafeInsets() const;

    /// The top inset of a screen with a notch, else 24.
    double getMenuBarHeight() const;

    /// The zero rectangle without a screen.
    QRectF getScreenFrame() const;

    /// Whether the top inset is greater than 0.
    bool hasNotch() const;

    /// The estimated notch, relative to the screen's own lower-left corner: 30 % of the width,
    /// centred. The zero rectangle without a screen or a notch.
    QRectF getNotchBounds() const;

    /// Without a notch the whole width is on the left.
    NotchSafeZones getNotchSafeZones() const;

private:
    const Screens& screens_;
};

} // namespace velmora
