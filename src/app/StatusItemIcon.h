#pragma once

#include <QIcon>
#include <QString>
#include <optional>

namespace velmora {

/// The tray item's picture, 18 points wide and high: the image file at `path` as drawn, or, when
/// there is none that can be read, the character "▦". Needs the application object.
QIcon statusItemIcon(const std::optional<QString>& path);

} // namespace velmora
