#pragma once

#include "platform/Session.h"

#include <memory>

namespace velmora {

class X11Connection;

/// The services of an X11 session over one connection of their own beside Qt's, with those of the
/// freedesktop ones.
class X11Session final : public Session {
public:
    /// Connects to the display that the environment names; nothing when that fails.
    static std::unique_ptr<X11Session> open();
    ~X11Session() override;

    QByteArrayList qtArguments() const override;
    QString name() const override;
    Accessibility& accessibility() override;
    Appearance& appearance() override;
    InputGrants& inputGrants() override;
    KeyboardEvents& keyboardEvents() override;
    Panels& panels() override;
    Screens& screens() override;
    TrayHost& trayHost() override;
    WindowActivation& windowActivation() override;
    Workspace& workspace() override;
    void prepareTheRest() override;

private:
    explicit X11Session(std::unique_ptr<X11Connection> connection);

    struct Services;
    Services& services();

    std::unique_ptr<X11Connection> connection_;
    std::unique_ptr<Services> services_;
};

} // namespace velmora
