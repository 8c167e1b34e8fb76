#pragma once

#include "overlay/OverlayController.h"

#include <QPointer>
#include <functional>
#include <memory>

class QSystemTrayIcon;

namespace velmora {

class PopupMenu;
class TrayHost;

/// The application's item in the tray, with a menu that toggles the bar, opens the settings and
/// quits. Without a tray nothing happens until one comes. Main thread only.
class StatusBarController : public QObject {
    Q_OBJECT
public:
    /// Makes nothing yet. `trayHost` outlives the controller; `showSettings` brings up the
    /// settings window.
    StatusBarController(TrayHost& trayHost, std::function<void()> showSettings);
    ~StatusBarController() override;

    /// Puts the item with its menu into the tray, now or when one comes. Call once.
    void setupStatusBar();

    /// Absent until there is a tray for it.
    std::unique_ptr<QSystemTrayIcon> statusItem;
    /// Whose bar the first entry toggles.
    QPointer<OverlayController> overlayController;

    /// The item's menu; absent as long as the item is.
    PopupMenu* menu() const { return menu_.get(); }

private:
    void makeStatusItem();
    void setupMenu();
    void toggleOverlay();
    void openSettings();
    void quitApp();

    TrayHost& trayHost_;
    std::function<void()> showSettings_;
    std::unique_ptr<PopupMenu> menu_;
};

} // namespace velmora
