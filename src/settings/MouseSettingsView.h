#pragma once

#include <QWidget>

namespace velmora {

class InputGrants;
class MouseButtonManager;

/// The second tab: the mouse button bindings.
class MouseSettingsView : public QWidget {
    Q_OBJECT
public:
    /// The stores outlive the view.
    MouseSettingsView(MouseButtonManager& mouseManager, InputGrants& inputGrants);
};

} // namespace velmora
