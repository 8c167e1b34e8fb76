#pragma once

#include "app/CommandLine.h"
#include "app/StatusBarController.h"
#include "input/HotKeyManager.h"
#include "input/MouseButtonManager.h"
#include "overlay/OverlayController.h"
#include "viewkit/MenuModel.h"

#include <QList>
#include <QObject>

namespace velmora {

class RemoteControl;

/// The composition root: owns the long-lived controllers and brings them up in a fixed order.
/// Construction shows nothing and installs nothing. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    /// `remoteControl` outlives the delegate.
    explicit AppDelegate(RemoteControl& remoteControl);

    /// Installs the main menu, then starts the services, at once or after the user has agreed to
    /// the terms. Call once, from the running event loop.
    void applicationDidFinishLaunching();
    /// Carries out what the command line asked of this instance when it is the first: what a start
    /// does by itself is done.
    void carryOutAtStart(RemoteCommand command);

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
    /// Carries out what another launch asked.
    void carryOut(RemoteCommand command);
    /// The settings, or, before agreement, the terms.
    void comeForward();
    void setOverlayVisible(bool visible);
    /// Starts a successor, which takes over once this process has ended, and ends it.
    void restart();
    void setupMainMenu();

    RemoteControl& remoteControl_;
    QList<MenuModel> mainMenu_;
};

} // namespace velmora
