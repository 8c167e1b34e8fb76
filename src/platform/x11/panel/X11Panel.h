#pragma once

#include "platform/Panel.h"

#include <QAbstractNativeEventFilter>
#include <QRect>
#include <QWidget>
#include <memory>
#include <optional>

namespace velmora {

class X11Connection;
class X11Docks;
class X11Screens;
class X11StackKeeper;
class X11StripReservation;

/// An override-redirect window: no window manager moves, covers or focuses it. Unseen it has an
/// empty shape; it stays mapped, with or without a compositor.
class X11Panel final : public Panel, private QAbstractNativeEventFilter {
public:
    X11Panel(X11Connection& connection, const X11Screens& screens, std::unique_ptr<QWidget> view);
    ~X11Panel() override;

    void request(const PanelRequest& request) override;

private:
    /// Keeps from Qt what extent the window really has: it would leave out the point that the
    /// screen's end cuts.
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    /// Follows the screen and the docks.
    void place();
    /// Carries out whether it is seen.
    void present();
    void reserve();
    bool isSeen() const;
    void applyExtent();
    /// Gives the window the shapes that its state asks for: empty ones, or its whole extent.
    void applyShapes();
    void keepAbove();

    X11Connection& connection_;
    const X11Screens& screens_;
    std::optional<PanelRequest> request_;
    QRect extent_; ///< pixels of the root window; empty without a screen
    QWidget window_;
    WId keptWindow_ = 0;
    std::unique_ptr<X11StackKeeper> stackKeeper_; ///< of `keptWindow_`
    std::unique_ptr<X11Docks> docks_;             ///< while it lies below them
    std::unique_ptr<X11StripReservation> reservation_;
    QRect reserved_; ///< what `reservation_` is for
};

/// Makes the session's panels. Needs a QApplication on the X server of `connection`.
class X11Panels final : public Panels {
public:
    X11Panels(X11Connection& connection, const X11Screens& screens)
        : connection_(connection), screens_(screens) {}

    std::unique_ptr<Panel> create(std::unique_ptr<QWidget> view) override;

private:
    X11Connection& connection_;
    const X11Screens& screens_;
};

} // namespace velmora
