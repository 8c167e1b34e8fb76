#pragma once

#include "platform/PanelWindow.h"
#include "platform/x11/panel/X11PanelWindow.h"
#include "platform/x11/screens/X11Screens.h"

namespace velmora {

/// Makes the session's panel windows. Needs a QApplication on the X server of `connection`.
class X11PanelWindows : public PanelWindows {
public:
    explicit X11PanelWindows(X11Connection& connection);

    std::unique_ptr<PanelWindow> create(const QRectF& contentRect, unsigned styleMask) override;

private:
    X11Connection& connection_;
    X11Screens screens_;
};

/// The frame over `contentRect`, which counts in points from the lower-left corner of the primary
/// screen. The server has that screen's top-left corner at `origin`; a point is `ratio` pixels. An
/// empty rectangle stays empty.
PanelFrame panelFrame(const QRectF& contentRect, double screenHeight, QPoint origin, double ratio);

} // namespace velmora
