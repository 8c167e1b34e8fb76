#pragma once

#include "model/MouseButtonBinding.h"
#include "model/Preferences.h"
#include "model/ShortcutButton.h"

namespace velmora {

/// All that a user has set up: what is exported from one home and imported into another.
struct Setup {
    QList<ShortcutButton> buttons;
    QList<MouseButtonBinding> mouseBindings;
    PreferenceValues preferences;
};

/// The file's form: JSON text in UTF-8, one record a line, with the number of its version.
QByteArray encodedSetup(const Setup& setup);

/// Reads a whole text; anything that is not as agreed fails it. Both lists are required. A
/// preference may be missing.
Decoded<Setup> decodedSetup(const QByteArray& json);

} // namespace velmora
