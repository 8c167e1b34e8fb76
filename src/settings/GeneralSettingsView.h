#pragma once

#include "foundation/LoginItem.h"

#include <QWidget>

namespace velmora {

class Exchange;
class FormGroup;
class HotKeyManager;
class InputGrants;
class Preferences;

/// The third tab: the hot key, the bar's place, the start with the desktop session, and import
/// and export.
class GeneralSettingsView : public QWidget {
    Q_OBJECT
public:
    /// What is handed in by reference outlives the view.
    GeneralSettingsView(
        Preferences& preferences, HotKeyManager& hotKeyManager, InputGrants& inputGrants,
        const LoginItem& loginItem, const Exchange& exchange);

private:
    FormGroup* makeBarGroup(Preferences& preferences);
    FormGroup* makeLoginGroup(const LoginItem& loginItem);
};

} // namespace velmora
