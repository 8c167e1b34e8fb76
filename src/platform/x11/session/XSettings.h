#pragma once

#include <QByteArrayView>
#include <optional>

namespace velmora {

/// The value of the text called `name` in what an XSETTINGS manager publishes
/// ("_XSETTINGS_SETTINGS" of its window), in either byte order; nothing when there is none or the
/// data are damaged before it.
std::optional<QByteArrayView> xsettingsText(QByteArrayView settings, QByteArrayView name);

} // namespace velmora
