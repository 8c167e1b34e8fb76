#pragma once

#include <QRectF>
#include <memory>

class QWidget;

namespace velmora {

/// A borderless, transparent window without a shadow, on every workspace, above ordinary and
/// full-screen windows and below menus, that never takes the keyboard focus. On screen from its
/// creation to its destruction; its frame stays as it is.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// While it is not presented, nothing of it is seen and every click goes to what lies beneath.
    /// At once, without unmapping. Presented at first.
    virtual void setPresented(bool presented) = 0;
    /// Shows `view` in the window, resized with it; the window owns it from now on.
    virtual void setContentView(QWidget* view) = 0;
};

/// Makes panel windows.
class PanelWindows {
public:
    virtual ~PanelWindows() = default;

    /// A window over `contentRect` (points, bottom-left origin at the primary screen's lower-left
    /// corner).
    virtual std::unique_ptr<PanelWindow> create(const QRectF& contentRect) = 0;
};

} // namespace velmora
