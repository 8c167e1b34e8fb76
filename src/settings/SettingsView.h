#pragma once

#include "foundation/LoginItem.h"
#include "settings/VelmoraSettingsView.h"

#include <QTabWidget>

namespace velmora {

class EditHistory;
class Exchange;
class HotKeyManager;
class MouseButtonManager;
class Preferences;

/// What the settings work on; all of it outlives them.
struct SettingsServices {
    ShortcutManager& shortcutManager;
    MouseButtonManager& mouseManager;
    EditHistory& history; ///< of both
    const Exchange& exchange;
    Preferences& preferences;
    HotKeyManager& hotKeyManager;
    InputGrants& inputGrants;
    LoginItem loginItem;
    std::optional<QVariantMap> infoDictionary;
    int barHeight = 0; ///< points that the bar covers at the top of the primary screen
};

/// The content of the settings window: its three tabs.
class SettingsView : public QTabWidget {
    Q_OBJECT
public:
    explicit SettingsView(const SettingsServices& services);

    static constexpr QSize contentSize{600, 500}; ///< points; the least, and at first

    QSize sizeHint() const override { return contentSize; }

private:
    /// Shows `record` in the list that it is in, or was.
    void reveal(const QUuid& record);
};

} // namespace velmora
