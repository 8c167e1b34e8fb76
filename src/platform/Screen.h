#pragma once

#include <QMarginsF>
#include <QRectF>
#include <optional>

namespace velmora {

/// One display. Points, bottom-left origin, y upwards; the primary screen's lower-left corner is
/// the global origin.
struct Screen {
    QRectF frame;
    QMarginsF safeAreaInsets; ///< room taken by the display's cut-out at each edge, 0 without one
};

/// The displays of the session.
class Screens {
public:
    virtual ~Screens() = default;

    /// The primary screen as it is now; absent when there is none.
    virtual std::optional<Screen> mainScreen() const = 0;
};

} // namespace velmora
