#pragma once

#include "platform/SingleInstance.h"
#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// The place is the X selection "_VELMORA_INSTANCE" of the display. A launch that finds it taken
/// sends its owner, a window that is never shown, the client message "_VELMORA_COME_FORWARD". An
/// owner that makes room carries the property "_VELMORA_MAKES_ROOM"; its window goes together with
/// all grabs of its connection.
class X11SingleInstance : public SingleInstance {
public:
    explicit X11SingleInstance(X11Connection& connection);

    bool claim() override;
    void setComeForwardHandler(std::function<void()> handler) override;
    void makeRoom() override;

private:
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    X11Connection::Subscription subscription_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    std::function<void()> handler_;
    bool isAsked_ = false;
};

} // namespace velmora
