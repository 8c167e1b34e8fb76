#pragma once

#include "platform/EventTap.h"

#include <optional>

class QKeyEvent;

namespace velmora {

/// A key event of our own window in the terms of an event tap, for when no tap delivers it:
/// keyDown, or flagsChanged with the modifiers as they are after the event. Nothing for the release
/// of a key that is no modifier. Only the keys that are named by position get their own key code,
/// all others kNoKeyCode.
std::optional<TapEvent> windowKeyEvent(const QKeyEvent& event);

} // namespace velmora
