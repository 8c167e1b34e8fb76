#pragma once

#include <QVariantMap>
#include <QWidget>
#include <optional>

namespace velmora {

/// The About panel: icon, name, version and licence. To be shown in a sheet.
class AboutView : public QWidget {
    Q_OBJECT
public:
    explicit AboutView(const std::optional<QVariantMap>& infoDictionary);
};

} // namespace velmora
