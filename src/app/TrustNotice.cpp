#include "app/TrustNotice.h"

#include "app/MainMenu.h"
#include "foundation/ActionMessages.h"
#include "foundation/LocalizedString.h"
#include "platform/WindowActivation.h"
#include "viewkit/Alert.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

namespace velmora {

void showTrustNotice(WindowActivation& activation, const QStringList& missingExtensions) {
    QMessageBox* notice = makeMessage(
        localizedString("trust_title"),
        missingExtensions.isEmpty()
            ? localizedString("trust_message")
            : localizedString("trust_message_extensions").arg(missingExtensions.join(u", "_s)),
        nullptr);
    notice->addButton(localizedString("button_close"), QMessageBox::RejectRole);

    // It has no menu bar, but the application's key equivalents act in every window.
    const MenuModel menu = mainMenu().constFirst();
    for (const MenuEntry& entry : menu.entries) {
        if (entry.keyEquivalent.isEmpty())
            continue;
        QObject::connect(
            new QShortcut(entry.keyEquivalent, notice), &QShortcut::activated,
            [message = entry.actionMessage] { ActionMessages::shared().send(message); });
    }
    activation.makeKeyAndOrderFront(*notice);
}

} // namespace velmora
