#pragma once

#include "platform/Screens.h"
#include "platform/x11/screens/PrimaryOutput.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QRect>
#include <QTimer>
#include <functional>

class QScreen;

namespace velmora {

class X11Connection;

/// The primary screen as Qt and RandR tell it. Linux has no one source for a display's cut-out; the
/// first of these that says something wins:
/// 1. the property "safe_area_insets" of the primary output,
/// 2. the property "_SAFE_AREA_INSETS" of the root window,
/// both four CARDINALs (top, left, bottom, right) in pixels;
/// 3. the profile of a laptop known to have a notch.
class X11Screens final : public Screens {
public:
    /// The primary screen on the server.
    struct Primary {
        QRect pixels; ///< of the root window
        double ratio; ///< pixels a point
        std::optional<PrimaryOutput> output;
    };

    /// Needs the application object. `readCompatible` gives the device tree's list of names of this
    /// machine, empty without one.
    explicit X11Screens(
        X11Connection& connection, std::function<QByteArray()> readCompatible = deviceTreeNames);

    std::optional<Screen> mainScreen() const override;
    /// Nothing while no output is connected.
    std::optional<Primary> primary() const;
    /// Of all screens, in pixels of the root window.
    static QList<QRect> all();

private:
    static QByteArray deviceTreeNames();
    void follow(const QScreen* screen);
    void noteChange();

    X11Connection& connection_;
    std::function<QByteArray()> readCompatible_;
    QTimer settling_;
    QElapsedTimer sinceTold_;
};

} // namespace velmora
