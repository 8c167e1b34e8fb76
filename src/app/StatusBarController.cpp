#include "app/StatusBarController.h"

#include "app/AfterFirstPaint.h"
#include "app/StatusItemIcon.h"
#include "foundation/Bundle.h"
#include "model/Preferences.h"
#include "platform/TrayHost.h"
#include "viewkit/PopupMenu.h"

#include <QCoreApplication>
#include <QCursor>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The given title names Option+M in AppKit's words; another hot key is named as keyboards here do.
QString toggleTitle() {
    const HotKey hotKey = Preferences::shared().hotKey();
    return u"メニューバーを切り替え (%1)"_s.arg(hotKey == HotKey() ? u"Option+M"_s : hotKey.name());
}

} // namespace

StatusBarController::StatusBarController(TrayHost& trayHost, std::function<void()> showSettings)
    : trayHost_(trayHost), showSettings_(std::move(showSettings)) {}

StatusBarController::~StatusBarController() = default;

void StatusBarController::setupStatusBar() {
    // The first use of QSystemTrayIcon decides for good which kind of tray it serves: not before
    // there is one. From then on it follows trays of that kind that go and come by itself.
    new AfterFirstPaint(this, [this] {
        trayHost_.whenThere([self = QPointer(this)] {
            if (self)
                self->makeStatusItem();
        });
    });
}

void StatusBarController::makeStatusItem() {
    statusItem = std::make_unique<QSystemTrayIcon>(
        statusItemIcon(Bundle::path(u"i-menu"_s, u"png"_s, u"icon"_s)));
    statusItem->setToolTip(u"Velmora - クリックして切り替え"_s);
    setupMenu();
    statusItem->show();
}

void StatusBarController::setupMenu() {
    menu_ = std::make_unique<PopupMenu>();
    menu_->setAccessibleName(u"Velmora"_s);
    QAction* toggle = menu_->addItem(toggleTitle(), {}, [this] { toggleOverlay(); });
    connect(&Preferences::shared(), &Preferences::changed, toggle, [toggle] {
        toggle->setText(toggleTitle());
    });
    menu_->addSeparator();
    menu_->addItem(u"設定..."_s, QKeySequence(u"Ctrl+,"_s), [this] { openSettings(); });
    menu_->addSeparator();
    menu_->addItem(u"終了"_s, QKeySequence(u"Ctrl+Q"_s), [this] { quitApp(); });
    statusItem->setContextMenu(menu_.get());
    // A tray opens it by the right button only.
    connect(
        statusItem.get(), &QSystemTrayIcon::activated, menu_.get(),
        [this](QSystemTrayIcon::ActivationReason reason) {
            // Beside the pointer, whatever edge the tray is at, so that the release chooses
            // nothing.
            if (reason == QSystemTrayIcon::Trigger)
                menu_->popup(QCursor::pos());
        });
}

void StatusBarController::toggleOverlay() {
    if (overlayController)
        overlayController->toggleOverlay();
}

void StatusBarController::openSettings() {
    showSettings_();
}

void StatusBarController::quitApp() {
    QCoreApplication::exit();
}

} // namespace velmora
