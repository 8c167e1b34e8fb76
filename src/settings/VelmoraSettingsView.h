#pragma once

#include <QVariantMap>
#include <QWidget>
#include <functional>
#include <optional>

namespace velmora {

class InputGrants;
class ShortcutManager;

/// Starts a new instance of this program and calls `completion` once, whether it started or not.
using Relaunch = std::function<void(std::function<void()> completion)>;

/// The first tab: the bar's buttons, and the program's restart and version.
class VelmoraSettingsView : public QWidget {
    Q_OBJECT
public:
    /// The stores outlive the view.
    VelmoraSettingsView(
        ShortcutManager& shortcutManager, InputGrants& inputGrants, Relaunch relaunch,
        std::optional<QVariantMap> infoDictionary);

private:
    void restartApp();

    const Relaunch relaunch_;
};

} // namespace velmora
