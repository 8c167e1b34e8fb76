#pragma once

#include <QMarginsF>
#include <QObject>
#include <QRectF>
#include <optional>

namespace velmora {

/// One display. Points, bottom-left origin, y upwards; the primary screen's lower-left corner is
/// the global origin.
struct Screen {
    QRectF frame;
    QMarginsF safeAreaInsets; ///< room taken by the display's cut-out at each edge, 0 without one
};

/// The displays of the session. Main thread only.
class Screens : public QObject {
    Q_OBJECT
public:
    /// The primary screen as it is now; absent when there is none.
    virtual std::optional<Screen> mainScreen() const = 0;

Q_SIGNALS:
    /// The primary screen may have become another one, or its resolution, rotation or scale has
    /// changed. Told at once after a calm; displays that come and go in quick succession are told
    /// of when they have settled.
    void changed();
};

} // namespace velmora
