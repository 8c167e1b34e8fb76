#pragma once

#include "platform/Screen.h"

#include <QByteArray>
#include <functional>

namespace velmora {

class X11Connection;

/// The primary screen as Qt and RandR tell it. Linux has no one source for a display's cut-out; the
/// first of these that says something wins:
/// 1. the property "safe_area_insets" of the primary output,
/// 2. the property "_SAFE_AREA_INSETS" of the root window,
/// both four CARDINALs (top, left, bottom, right) in pixels;
/// 3. the profile of a laptop known to have a notch.
class X11Screens : public Screens {
public:
    /// `readCompatible` gives the device tree's list of names of this machine, empty without one.
    explicit X11Screens(
        X11Connection& connection, std::function<QByteArray()> readCompatible = deviceTreeNames);

    std::optional<Screen> mainScreen() const override;

private:
    static QByteArray deviceTreeNames();

    X11Connection& connection_;
    std::function<QByteArray()> readCompatible_;
};

} // namespace velmora
