#pragma once

#include "platform/Accessibility.h"

#include <QByteArray>

namespace velmora {

class X11Connection;

/// Trusted where X programs see and send the whole session's input: the server offers XTEST, XInput
/// 2 and XKB, and the session is not a Wayland one.
class X11Accessibility : public Accessibility {
public:
    explicit X11Accessibility(X11Connection& connection);

    bool isProcessTrusted() const override { return !isWayland_ && missing_.isEmpty(); }
    QStringList missingExtensions() const override { return isWayland_ ? QStringList() : missing_; }

private:
    // Neither changes while the server runs.
    bool isWayland_;
    QStringList missing_;
};

/// Whether X programs are guests of a Wayland session, where they see only part of the input. A
/// server that is Xwayland is certain, and so is a session type in words; WAYLAND_DISPLAY counts
/// unless the session says it is an X11 one (a nested compositor's leftover).
bool isWaylandSession(
    bool serverIsXwayland, const QByteArray& sessionType, const QByteArray& waylandDisplay);

} // namespace velmora
