#pragma once

#include "platform/PanelWindow.h"
#include "platform/x11/screens/X11Screens.h"

#include <QAbstractNativeEventFilter>
#include <QWidget>
#include <memory>

namespace velmora {

class X11Connection;
class X11StackKeeper;

/// Where a panel is, from the top left. Qt counts in whole points, which at most scales do not end
/// where the screen does.
struct PanelFrame {
    QRect pixels; ///< the window's extent on the server
    QRect points; ///< the least one of whole points, in Qt's coordinates, that covers it
};

/// An override-redirect window: no window manager moves, covers or focuses it, and all leave it on
/// every workspace and beside full-screen windows. Not presented, it has empty shapes; it stays
/// mapped, with or without a compositor.
class X11PanelWindow : public PanelWindow, private QAbstractNativeEventFilter {
public:
    /// An empty frame never appears: X knows no window without an extent.
    X11PanelWindow(X11Connection& connection, const PanelFrame& frame);
    ~X11PanelWindow() override;

    void setPresented(bool presented) override;
    void setContentView(QWidget* view) override;

private:
    /// Keeps from Qt what extent the window really has: it would leave out the point that the
    /// screen's end cuts.
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void applyExtent();
    /// Gives the window empty shapes, or its whole extent.
    void applyShapes();

    const QRect extent_; ///< pixels
    bool isPresented_ = true;
    QWidget window_;
    std::unique_ptr<X11StackKeeper> stackKeeper_; ///< null for an empty frame
};

/// Makes the session's panel windows. Needs a QApplication on the X server of `connection`.
class X11PanelWindows : public PanelWindows {
public:
    explicit X11PanelWindows(X11Connection& connection);

    std::unique_ptr<PanelWindow> create(const QRectF& contentRect) override;

private:
    X11Connection& connection_;
    X11Screens screens_;
};

/// The frame over `contentRect`, which counts in points from the lower-left corner of the primary
/// screen. The server has that screen's top-left corner at `origin`; a point is `ratio` pixels. An
/// empty rectangle stays empty.
PanelFrame panelFrame(const QRectF& contentRect, double screenHeight, QPoint origin, double ratio);

} // namespace velmora
