#pragma once

#include <QVariantMap>
#include <QWidget>
#include <optional>

namespace velmora {

class InputGrants;
class ShortcutManager;

/// The first tab: the bar's buttons, and the program's restart and version.
class VelmoraSettingsView : public QWidget {
    Q_OBJECT
public:
    /// The stores outlive the view.
    VelmoraSettingsView(
        ShortcutManager& shortcutManager, InputGrants& inputGrants,
        std::optional<QVariantMap> infoDictionary);

private:
    void restartApp();
};

} // namespace velmora
