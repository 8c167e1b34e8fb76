#pragma once

#include "platform/PanelWindow.h"
#include "platform/x11/X11Screens.h"

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

/// The least frame of whole points, in Qt's coordinates (top-left origin), that covers
/// `contentRect`, which counts from the lower-left corner of the primary screen. `screenOrigin` is
/// where Qt has that screen's top-left corner. An empty rectangle stays empty.
QRect coveringFrame(const QRectF& contentRect, double screenHeight, QPoint screenOrigin);

} // namespace velmora
