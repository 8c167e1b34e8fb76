#pragma once

#include "platform/x11/keyboard/ModifierMap.h"

#include <vector>

namespace velmora {

/// The modifier states, of the 256 there are, in which all of `required` is held, whatever else is
/// held or locked.
inline std::vector<std::uint32_t> chordStates(const ModifierMap& modifiers, EventFlags required) {
    std::vector<std::uint32_t> states;
    for (unsigned state = 0; state <= 0xff; ++state) {
        if ((modifiers.flags(static_cast<std::uint8_t>(state)) & required) == required)
            states.push_back(state);
    }
    return states;
}

/// Whether in `state` just `required` is held, with any locks (Caps, Num, a level). The chord is of
/// no use without these; the others another program may have for good.
inline bool isPlainChord(const ModifierMap& modifiers, EventFlags required, std::uint32_t state) {
    return modifiers.flags(static_cast<std::uint8_t>(state)) == required;
}

} // namespace velmora
