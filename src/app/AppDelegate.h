#pragma once

#include "app/StatusBarController.h"
#include "input/HotKeyManager.h"
#include "input/MouseButtonManager.h"
#include "overlay/OverlayController.h"
#include "viewkit/MenuModel.h"

#include <QList>
#include <QObject>

namespace velmora {

/// The composition root: owns the long-lived controllers and brings them up in a fixed order.
/// Construction shows nothing and installs nothing. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    AppDelegate();

    /// Installs the main menu, then starts the services, at once or after the user has agreed to
    /// the terms. Call once, from the running event loop.
    void applicationDidFinishLaunching();

    void setupOverlay();
    void setupStatusBar();
    void setupHotKeys();
    void setupMouseButtonMonitoring();

    void showSettings();
    void toggleOverlayMenu();
    void quitApp();

    OverlayController overlayController;
    HotKeyManager& hotKeyManager;
    MouseButtonManager& mouseButtonManager;
    StatusBarController statusBarController;

private:
    void checkTermsAndStart();
    void showTerms();
    void startServices();
    /// The user started the program again: the settings, or, before agreement, the terms.
    void comeForward();
    void setupMainMenu();

    QList<MenuModel> mainMenu_;
};

} // namespace velmora
