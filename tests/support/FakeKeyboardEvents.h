#pragma once

#include "platform/KeyboardEvents.h"

#include <vector>

namespace velmora::test {

/// Keyboard events that are recorded instead of posted; each step can be made to fail.
class FakeKeyboardEvents : public KeyboardEvents {
public:
    bool hasSource = true;
    bool createsKeyDown = true;
    bool createsKeyUp = true;

    std::vector<KeyboardEvent> posted;

    void prepare() override {}

    std::unique_ptr<EventSource> createEventSource(EventSourceState) override {
        return hasSource ? std::make_unique<EventSource>() : nullptr;
    }

    std::optional<KeyboardEvent>
    createKeyboardEvent(EventSource&, KeyCode keyCode, bool keyDown) override {
        if (!isKey(keyCode) || !(keyDown ? createsKeyDown : createsKeyUp))
            return std::nullopt;
        // As if the user held every modifier.
        return KeyboardEvent{keyCode, keyDown, 0x1E0000};
    }

    void post(const KeyboardEvent& event) override {
        if (isKey(event.keyCode))
            posted.push_back(event);
    }

private:
    /// Whether an ANSI keyboard has a key of that code.
    static bool isKey(KeyCode keyCode) { return keyCode < 127 && keyCode != 52; }
};

} // namespace velmora::test
