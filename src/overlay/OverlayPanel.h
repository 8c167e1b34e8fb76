#pragma once

#include "platform/Panel.h"

#include <QObject>
#include <memory>

class QWidget;

namespace velmora {

class Preferences;
class ScreenManager;

/// The bar's window, over the menu-bar strip of the primary screen: on screen from its construction
/// to its destruction, it follows the screen and what the user prefers. Main thread only.
class OverlayPanel : public QObject {
    Q_OBJECT
public:
    /// `view` fills it. The others outlive the panel.
    OverlayPanel(
        const ScreenManager& screenManager, const Preferences& preferences, Panels& panels,
        std::unique_ptr<QWidget> view);

    /// Whether the panel is seen and takes clicks; at once, without unmapping it.
    void setPresented(bool presented);

private:
    void request();

    const ScreenManager& screenManager_;
    const Preferences& preferences_;
    std::unique_ptr<Panel> panel_;
    PanelRequest request_;
};

} // namespace velmora
