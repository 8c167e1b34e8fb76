#pragma once

#include "platform/InputGrants.h"

#include <optional>

class QKeyEvent;

namespace velmora {

/// A key event of our own window as a grant of every key would give it, for when none does:
/// keyDown, or flagsChanged with the modifiers as they are after the event. Nothing for the release
/// of a key that is no modifier. Only the keys that are named by position get their own key code,
/// all others kNoKeyCode.
std::optional<KeyInput> windowKeyEvent(const QKeyEvent& event);

} // namespace velmora
