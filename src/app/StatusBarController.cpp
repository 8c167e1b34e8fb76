#include "app/StatusBarController.h"

#include "app/AfterFirstPaint.h"
#include "app/StatusItemIcon.h"
#include "foundation/Bundle.h"
#include "platform/TrayHost.h"
#include "viewkit/PopupMenu.h"

#include <QCoreApplication>
#include <QCursor>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace velmora {

StatusBarController::StatusBarController(TrayHost& trayHost, std::function<void()> showSettings)
    : trayHost_(trayHost), showSettings_(std::move(showSettings)) {}

StatusBarController::~StatusBarController() = default;

void StatusBarController::setupStatusBar() {
    new AfterFirstPaint(this, [this] {
        trayHost_.observe([self = QPointer(this)](bool isThere) {
            if (self)
                self->trayChanged(isThere);
        });
    });
}

void StatusBarController::trayChanged(bool isThere) {
    // The first use of QSystemTrayIcon decides for good which kind of tray it serves: not before
    // there is one.
    if (!statusItem && !isThere)
        return;
    if (!statusItem)
        makeStatusItem();
    // Anew for a tray that took the place of another.
    statusItem->hide();
    statusItem->setVisible(isThere);
}

void StatusBarController::makeStatusItem() {
    statusItem = std::make_unique<QSystemTrayIcon>(
        statusItemIcon(Bundle::path(u"i-menu"_s, u"png"_s, u"icon"_s)));
    statusItem->setToolTip(u"Velmora - クリックして切り替え"_s);
    setupMenu();
}

void StatusBarController::setupMenu() {
    menu_ = std::make_unique<PopupMenu>();
    menu_->addItem(u"メニューバーを切り替え (Option+M)"_s, {}, [this] { toggleOverlay(); });
    menu_->addSeparator();
    menu_->addItem(u"設定..."_s, QKeySequence(u"Ctrl+,"_s), [this] { openSettings(); });
    menu_->addSeparator();
    menu_->addItem(u"終了"_s, QKeySequence(u"Ctrl+Q"_s), [this] { quitApp(); });
    // Not as the item's own menu: some trays draw that themselves, without key equivalents.
    connect(statusItem.get(), &QSystemTrayIcon::activated, menu_.get(), [this] {
        menu_->popUp(QCursor::pos());
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
