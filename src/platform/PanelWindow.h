#pragma once

#include <QColor>
#include <QRectF>
#include <memory>

class QWidget;

namespace velmora {

/// A borderless window over the session's other windows that never takes the keyboard focus.
/// Created unmapped; visible from orderFrontRegardless() until it is destroyed. The numbers are
/// AppKit's; each platform gives them their effect.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// 25 is the status-window level: above ordinary and full-screen windows, below menus.
    virtual void setLevel(int level) = 0;
    /// Bit 0x1: on all workspaces; bit 0x100: beside full-screen windows.
    virtual void setCollectionBehavior(unsigned behavior) = 0;
    virtual void setBackgroundColor(const QColor& color) = 0;
    virtual void setHasShadow(bool hasShadow) = 0;
    virtual void setOpaque(bool opaque) = 0;
    /// True lets every click through to what lies beneath. At once, without unmapping.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
    /// 0.0 is invisible, 1.0 opaque. At once, without unmapping.
    virtual void setAlphaValue(double alpha) = 0;
    /// Puts the window on screen, in front, without activating the application.
    virtual void orderFrontRegardless() = 0;
    /// Shows `view` in the window, resized with it; the window owns it from now on.
    virtual void setContentView(QWidget* view) = 0;
};

/// Makes panel windows.
class PanelWindows {
public:
    virtual ~PanelWindows() = default;

    /// A window over `contentRect` (points, bottom-left origin at the primary screen's lower-left
    /// corner). `styleMask` bits: 0x80 non-activating panel, 0x8000 full-size content view.
    virtual std::unique_ptr<PanelWindow> create(const QRectF& contentRect, unsigned styleMask) = 0;
};

} // namespace velmora
