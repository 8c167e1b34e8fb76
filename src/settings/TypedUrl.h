#pragma once

#include <QString>
#include <optional>

namespace velmora {

/// The URL that `text`, typed by a user, stands for: a URL itself without the spaces around it, and
/// a host that stands alone, with or without a port and a path, with https:// in front, or with
/// http:// if it is localhost, an IP address, or has a port other than 443. Nothing when it is
/// neither, and so could not be opened.
std::optional<QString> typedUrl(const QString& text);

} // namespace velmora
