#pragma once

#include <QString>
#include <optional>

namespace velmora {

/// The URL that `text`, typed by a user, stands for: a URL itself without the spaces around it, and
/// a host name that stands alone, with or without a port and a path, with https:// in front.
/// Nothing when it is neither, and so could not be opened.
std::optional<QString> typedUrl(const QString& text);

} // namespace velmora
