#pragma once

#include "platform/KeyboardEvents.h"
#include "platform/x11/keyboard/X11Keyboard.h"

namespace velmora {

/// Keys typed through XTEST.
class X11KeyboardEvents : public KeyboardEvents {
public:
    /// `keyboard` must outlive this.
    explicit X11KeyboardEvents(const X11Keyboard& keyboard);
    ~X11KeyboardEvents() override;

    void prepare() override;
    /// Nothing when the server lacks XTEST, XKB or XInput 2.
    std::unique_ptr<EventSource> createEventSource(EventSourceState state) override;
    std::optional<KeyboardEvent>
    createKeyboardEvent(EventSource& source, KeyCode keyCode, bool keyDown) override;
    void post(const KeyboardEvent& event) override;

private:
    class Typist;

    const X11Keyboard& keyboard_;
    std::unique_ptr<Typist> typist_;
};

} // namespace velmora
