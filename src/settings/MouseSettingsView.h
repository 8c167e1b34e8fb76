#pragma once

#include <QWidget>

namespace velmora {

class EventTaps;
class MouseButtonManager;
class RecordListPane;

/// The second tab: the mouse button bindings.
class MouseSettingsView : public QWidget {
    Q_OBJECT
public:
    /// The stores outlive the view.
    MouseSettingsView(
        MouseButtonManager& mouseManager, EventTaps& eventTaps, QWidget* parent = nullptr);

    RecordListPane& pane() { return *pane_; }

private:
    RecordListPane* pane_;
};

} // namespace velmora
