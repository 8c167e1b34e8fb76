#pragma once

#include "platform/EventFlags.h"

#include <QLatin1StringView>
#include <QString>
#include <array>
#include <optional>

/// The names of keys and modifiers, the same in stored actions, when keys are typed and when they
/// are recorded.
namespace velmora::KeyNames {

/// A modifier by name and the event flag that stands for it.
struct Modifier {
    QLatin1StringView name;
    EventFlags flag;
};

/// All modifiers, in the order in which a combination lists them.
inline constexpr std::array<Modifier, 4> modifiers{{
    {QLatin1StringView("Command"), kCGEventFlagMaskCommand},
    {QLatin1StringView("Option"), kCGEventFlagMaskAlternate},
    {QLatin1StringView("Control"), kCGEventFlagMaskControl},
    {QLatin1StringView("Shift"), kCGEventFlagMaskShift},
}};

/// The flag of the modifier with exactly that name.
std::optional<EventFlags> modifierFlag(const QString& name);

/// The code of the key with that name. Named keys ("Return", "←") compare exactly, letters and
/// digits in either case; nothing for any other name.
std::optional<KeyCode> keyCode(const QString& name);

/// The name of a key that is named by its position whatever the layout types there: the named keys
/// and the digits. Nothing for letters and all other keys, which are named by what they type.
std::optional<QString> nameOfPosition(KeyCode code);

} // namespace velmora::KeyNames
