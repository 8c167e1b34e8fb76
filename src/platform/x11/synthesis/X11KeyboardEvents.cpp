#include "platform/x11/synthesis/X11KeyboardEvents.h"

namespace velmora {

void X11KeyboardEvents::prepare() {
    if (!typist_ && keyboard_.isAvailable())
        typist_ = Typist::open(keyboard_.modifiers());
}

std::unique_ptr<EventSource> X11KeyboardEvents::createEventSource(EventSourceState) {
    prepare();
    return typist_ ? std::make_unique<EventSource>() : nullptr;
}

std::optional<KeyboardEvent>
X11KeyboardEvents::createKeyboardEvent(EventSource&, KeyCode keyCode, bool keyDown) {
    if (!keyboard_.positions().keycode(keyCode))
        return std::nullopt;
    return KeyboardEvent{keyCode, keyDown};
}

void X11KeyboardEvents::post(const KeyboardEvent& event) {
    const auto keycode = keyboard_.positions().keycode(event.keyCode);
    if (!keycode || !typist_)
        return;
    const uint8_t mask = keyboard_.modifiers().mask(event.flags);
    if (event.keyDown)
        typist_->press(*keycode, mask);
    else
        typist_->release(*keycode, mask);
}

} // namespace velmora
