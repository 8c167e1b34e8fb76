#pragma once

#include <QString>

namespace velmora {

/// `text` in a form in which containment ignores case and compatibility forms (full-width letters,
/// ligatures, ß and ss), but not diacritics: ä stays apart from a. The four letters i (I, i, İ, ı)
/// are one, so that a search works whichever pair the user's language holds for upper and lower
/// case.
QString foldedForSearch(const QString& text);

} // namespace velmora
