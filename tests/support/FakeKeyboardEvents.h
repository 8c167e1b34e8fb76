#pragma once

#include "platform/KeyboardEvents.h"

#include <vector>

namespace velmora::test {

/// Keyboard events that are recorded instead of posted.
class FakeKeyboardEvents : public KeyboardEvents {
public:
    std::vector<KeyboardEvent> posted;

    void prepare() override {}

    std::unique_ptr<EventSource> createEventSource(EventSourceState) override {
        return std::make_unique<EventSource>();
    }

    std::optional<KeyboardEvent>
    createKeyboardEvent(EventSource&, KeyCode keyCode, bool keyDown) override {
        // As if the user held every modifier.
        return KeyboardEvent{keyCode, keyDown, 0x1E0000};
    }

    void post(const KeyboardEvent& event) override { posted.push_back(event); }
};

} // namespace velmora::test
