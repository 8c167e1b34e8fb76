#include "World.h"

#include <algorithm>

namespace velmora::test {

void TapUnderTest::make(EventTaps& taps, EventTapInterest interest) {
    const std::uint64_t mask = eventMaskBit(EventType::keyDown) |
                               eventMaskBit(EventType::flagsChanged) |
                               eventMaskBit(EventType::otherMouseDown);
    tap = taps.create(
        EventTapLocation::sessionEventTap, EventTapPlacement::headInsert,
        EventTapOptions::defaultTap, mask, std::move(interest),
        [this](EventType type, const TapEvent& event) -> std::optional<TapEvent> {
            if (type != EventType::tapDisabledByUserInput) {
                events.push_back(event);
                return std::nullopt;
            }
            ++refusals;
            if (asksAgain)
                tap->setEnabled(true);
            return event;
        });
}

size_t TapUnderTest::presses() const {
    return pressed().size();
}

std::vector<std::int64_t> TapUnderTest::pressed() const {
    std::vector<std::int64_t> pressed;
    for (const TapEvent& event : events) {
        if (event.type == EventType::keyDown)
            pressed.push_back(event.keyCode);
        else if (event.type == EventType::otherMouseDown)
            pressed.push_back(event.buttonNumber);
    }
    return pressed;
}

} // namespace velmora::test
