#include "app/AppDelegate.h"

#include "actions/ActionEngine.h"
#include "app/ExchangeCommand.h"
#include "app/MainMenu.h"
#include "app/RemoteControl.h"
#include "app/TermsOfServiceView.h"
#include "app/TermsOfServiceWindow.h"
#include "app/TrustNotice.h"
#include "foundation/ActionMessages.h"
#include "foundation/Log.h"
#include "foundation/MainQueue.h"
#include "foundation/SystemRoom.h"
#include "foundation/UserDefaults.h"
#include "model/Preferences.h"
#include "model/ShortcutManager.h"
#include "overlay/ContentView.h"
#include "overlay/ScreenManager.h"
#include "platform/Accessibility.h"
#include "platform/Appearance.h"
#include "platform/Screens.h"
#include "platform/Session.h"
#include "settings/Exchange.h"
#include "settings/SettingsWindow.h"
#include "viewkit/PopupMenu.h"
#include "viewkit/WindowTheme.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

bool hasAgreed() {
    return UserDefaults::standard().boolean(TermsOfServiceView::agreementKey);
}

/// Whether the settings and what opens from them have what they take; says so when they have not.
bool hasRoomForWindows() {
    constexpr int descriptors = 8;
    constexpr std::size_t memory = 256 * 1024 * 1024;
    if (hasSystemRoom(descriptors, memory))
        return true;
    Log::write(
        u"The settings do not open: too few files may be open, or too little memory is left."_s);
    return false;
}

} // namespace

AppDelegate::AppDelegate(RemoteControl& remoteControl)
    : overlayController(
          ScreenManager::shared(), Preferences::shared(), Session::current().panels()),
      hotKeyManager(HotKeyManager::shared()),
      mouseButtonManager(MouseButtonManager::shared()),
      statusBarController(
          Session::current().trayHost(), [] { ActionMessages::shared().send(u"showSettings"_s); }),
      remoteControl_(remoteControl) {}

void AppDelegate::applicationDidFinishLaunching() {
    setupMainMenu();
    checkTermsAndStart();
    remoteControl_.listen([self = QPointer(this)](const QByteArray& bytes) -> RemoteAnswer {
        const auto request = decodedRequest(bytes);
        if (self && request && request->isExchange())
            return carryOutExchange(*request, Exchange::shared());
        if (self && request)
            self->carryOut(request->command);
        return {};
    });
}

void AppDelegate::setupMainMenu() {
    mainMenu_ = mainMenu();
    ActionMessages& messages = ActionMessages::shared();
    messages.setHandler(u"toggleOverlayMenu"_s, [this] { toggleOverlayMenu(); });
    messages.setHandler(u"showSettings"_s, [this] { showSettings(); });
    messages.setHandler(u"orderFrontStandardAboutPanel:"_s, [] {
        if (hasRoomForWindows())
            SettingsWindow::shared().showAboutPanel();
    });
    messages.setHandler(u"restart"_s, [this] { restart(); });
    messages.setHandler(u"quitApp"_s, [this] { quitApp(); });
    messages.setHandler(u"terminate:"_s, [this] { quitApp(); });
}

void AppDelegate::checkTermsAndStart() {
    // Asked with the first window or menu: the bar does not need it, and asking the desktop costs
    // time and memory.
    WindowTheme::setSchemeSource([] {
        // While it is the desktop's: the first window brings its own.
        const bool isDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
        Session::current().appearance().observe([isDark](std::optional<bool> prefersDark) {
            WindowTheme::setColorScheme(
                prefersDark.value_or(isDark) ? ColorScheme::dark : ColorScheme::light);
        });
    });
    if (hasAgreed()) {
        startServices();
        return;
    }
    showTerms();
}

void AppDelegate::showTerms() {
    TermsOfServiceWindow::shared().show([self = QPointer(this)] {
        if (self)
            self->startServices();
    });
}

void AppDelegate::startServices() {
    Accessibility& accessibility = Session::current().accessibility();
    accessibility.setPromptHandler([&accessibility] {
        showTrustNotice(Session::current().windowActivation(), accessibility.missingExtensions());
    });
    // Nothing waits for the answer.
    accessibility.isProcessTrustedWithPrompt();
    setupOverlay();
    setupStatusBar();
    setupHotKeys();
    setupMouseButtonMonitoring();
}

void AppDelegate::carryOut(RemoteCommand command) {
    switch (command) {
    case RemoteCommand::comeForward:
    case RemoteCommand::settings:
        return comeForward();
    case RemoteCommand::toggle:
        return toggleOverlayMenu();
    case RemoteCommand::show:
        return setOverlayVisible(true);
    case RemoteCommand::hide:
        return setOverlayVisible(false);
    case RemoteCommand::quit:
        return quitApp();
    case RemoteCommand::importSetup:
    case RemoteCommand::exportSetup:
        return;
    }
}

void AppDelegate::carryOutAtStart(RemoteCommand command) {
    if (command == RemoteCommand::settings || command == RemoteCommand::hide)
        carryOut(command);
}

void AppDelegate::setOverlayVisible(bool visible) {
    if (overlayController.isOverlayVisible != visible)
        overlayController.toggleOverlay();
}

void AppDelegate::restart() {
    remoteControl_.makeRoom();
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
    MainQueue::submit([] { ActionMessages::shared().send(u"terminate:"_s); });
}

void AppDelegate::comeForward() {
    if (hasAgreed())
        showSettings();
    else
        showTerms();
}

void AppDelegate::setupOverlay() {
    auto view = std::make_unique<ContentView>(
        ShortcutManager::shared(), [] { return ScreenManager::shared().hasNotch(); },
        [](const ShortcutAction& action) { ActionEngine::shared().execute(action); });
    QObject::connect(
        &Session::current().screens(), &Screens::changed, view.get(), &ContentView::followScreen);
    overlayController.setup(std::move(view));
}

void AppDelegate::setupStatusBar() {
    statusBarController.overlayController = &overlayController;
    statusBarController.setupStatusBar();
}

void AppDelegate::setupHotKeys() {
    hotKeyManager.overlayController = &overlayController;
    hotKeyManager.setupHotKeys();
    PopupMenu::setKeyFilter(
        [this](const QKeyEvent& event) { return hotKeyManager.performKeyEquivalent(event); });
}

void AppDelegate::setupMouseButtonMonitoring() {
    mouseButtonManager.startMonitoring();
}

void AppDelegate::showSettings() {
    if (!hasRoomForWindows())
        return;
    SettingsWindow& settings = SettingsWindow::shared();
    settings.setMainMenu(mainMenu_);
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
