#pragma once

#include <cstdint>

namespace velmora {

/// Modifier flags of an input event, a 64-bit mask.
using EventFlags = std::uint64_t;

inline constexpr EventFlags kCGEventFlagMaskShift = 0x20000;
inline constexpr EventFlags kCGEventFlagMaskControl = 0x40000;
inline constexpr EventFlags kCGEventFlagMaskAlternate = 0x80000; ///< Option; Alt (Mod1) here
inline constexpr EventFlags kCGEventFlagMaskCommand = 0x100000;  ///< Command; Super (Mod4) here

/// The code of a key's position, numbered as AppKit numbers those of the ANSI keyboard
/// (A = 0, M = 46, Return = 36, …), whatever the layout types there.
using KeyCode = std::uint16_t;

/// The code of a key at no known position.
inline constexpr KeyCode kNoKeyCode = 0xffff;

} // namespace velmora
