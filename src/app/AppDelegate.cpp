#include "app/AppDelegate.h"

#include "actions/ActionEngine.h"
#include "app/MainMenu.h"
#include "app/TermsOfServiceView.h"
#include "app/TermsOfServiceWindow.h"
#include "foundation/ActionMessages.h"
#include "foundation/UserDefaults.h"
#include "model/ShortcutManager.h"
#include "overlay/ContentView.h"
#include "overlay/ScreenManager.h"
#include "platform/Accessibility.h"
#include "platform/Appearance.h"
#include "platform/Platform.h"
#include "settings/SettingsWindow.h"
#include "viewkit/WindowTheme.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace velmora {

AppDelegate::AppDelegate()
    : overlayController(ScreenManager::shared(), Platform::current().panelWindows) {}

void AppDelegate::applicationDidFinishLaunching() {
    setupMainMenu();
    checkTermsAndStart();
}

void AppDelegate::setupMainMenu() {
    mainMenu_ = mainMenu();
    ActionMessages& messages = ActionMessages::shared();
    messages.setHandler(u"toggleOverlayMenu"_s, [this] { toggleOverlayMenu(); });
    messages.setHandler(u"showSettings"_s, [this] { showSettings(); });
    messages.setHandler(
        u"orderFrontStandardAboutPanel:"_s, [] { SettingsWindow::shared().showAboutPanel(); });
    messages.setHandler(u"quitApp"_s, [this] { quitApp(); });
    messages.setHandler(u"terminate:"_s, [this] { quitApp(); });
}

void AppDelegate::checkTermsAndStart() {
    if (UserDefaults::standard().boolean(TermsOfServiceView::agreementKey)) {
        startServices();
        return;
    }
    followDesktopAppearance();
    TermsOfServiceWindow::shared().show([self = QPointer(this)] {
        if (self)
            self->startServices();
    });
}

void AppDelegate::followDesktopAppearance() {
    // Not at start: the bar does not need it, and asking the desktop costs time and memory.
    if (std::exchange(followsAppearance_, true))
        return;
    Platform::current().appearance.observe([](bool prefersDark) {
        WindowTheme::setColorScheme(prefersDark ? ColorScheme::dark : ColorScheme::light);
    });
}

void AppDelegate::startServices() {
    // Nothing waits for the answer.
    Platform::current().accessibility.isProcessTrustedWithPrompt();
    setupOverlay();
}

void AppDelegate::setupOverlay() {
    overlayController.setup(std::make_unique<ContentView>(
        ShortcutManager::shared(), [] { return ScreenManager::shared().hasNotch(); },
        [](const ShortcutAction& action) { ActionEngine::shared().execute(action); }));
}

void AppDelegate::showSettings() {
    followDesktopAppearance();
    SettingsWindow& settings = SettingsWindow::shared();
    settings.setMainMenu(mainMenu_);
    settings.setRelaunch([](const std::function<void()>& completion) {
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
        completion();
    });
    settings.show();
}

void AppDelegate::toggleOverlayMenu() {
    overlayController.toggleOverlay();
}

void AppDelegate::quitApp() {
    // Not quit(): that asks every window first, and the terms window refuses to close.
    QCoreApplication::exit();
}

} // namespace velmora
