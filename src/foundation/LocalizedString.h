#pragma once

#include <QString>

namespace velmora {

/// The text of `key` in the user's language. A key without a text shows itself. Fill
/// placeholders with multi-argument arg(): user text may contain "%1".
/// The catalogues are resources/strings/velmora_<language>.ts.
QString localizedString(const char* key);

/// Loads the catalogues: English, and the one of the system's language over it. Call once, after
/// the application object was made.
void installLocalizedStrings();

} // namespace velmora
