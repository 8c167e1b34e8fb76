#pragma once

#include "platform/PanelWindow.h"

#include <QWidget>
#include <memory>

namespace velmora {

class X11Connection;
class X11StackKeeper;

/// An override-redirect window: no window manager moves, covers or focuses it. Hiding empties its
/// shape; it stays mapped, with or without a compositor.
class X11PanelWindow : public PanelWindow {
public:
    /// `frame` in Qt's coordinates (points, top-left origin). An empty one never appears: X knows
    /// no window without an extent.
    X11PanelWindow(X11Connection& connection, const QRect& frame);
    ~X11PanelWindow() override;

    void setLevel(int level) override;
    void setCollectionBehavior(unsigned behavior) override;
    void setBackgroundColor(const QColor& color) override;
    void setHasShadow(bool hasShadow) override;
    void setOpaque(bool opaque) override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setAlphaValue(double alpha) override;
    void orderFrontRegardless() override;
    void setContentView(QWidget* view) override;

private:
    /// Gives a window on screen the shapes that its state asks for: empty ones, or its whole
    /// extent.
    void applyShapes();

    X11Connection& connection_;
    bool keptAbove_ = false;
    bool invisible_ = false;
    bool ignoresMouseEvents_ = false;
    QWidget window_;
    std::unique_ptr<X11StackKeeper> stackKeeper_; ///< from the first showing on
};

} // namespace velmora
