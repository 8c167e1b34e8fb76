#include "app/ExchangeCommand.h"

#include "foundation/LocalizedString.h"
#include "foundation/UserDefaults.h"
#include "model/ShortcutManager.h"
#include "settings/Exchange.h"

#include <QCoreApplication>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace velmora {

RemoteAnswer carryOutExchange(const RemoteRequest& request, const Exchange& exchange) {
    const bool isImport = request.command == RemoteCommand::importSetup;
    const QString failure =
        isImport ? exchange.importFrom(request.file) : exchange.exportTo(request.file);
    if (!failure.isEmpty())
        return {1, u"velmora: "_s + failure};
    const QString unstored = UserDefaults::standard().failure();
    if (isImport && !unstored.isEmpty())
        return {1, u"velmora: imported, but it cannot be stored: "_s + unstored};
    return {};
}

RemoteAnswer carryOutExchange(const RemoteRequest& request) {
    int count = 0;
    const QCoreApplication application(count, nullptr);
    installLocalizedStrings();
    UserDefaults& defaults = UserDefaults::standard();
    EditHistory history;
    ShortcutManager buttons(defaults, history);
    StoredList<MouseButtonBinding> bindings(
        defaults, history, MouseButtonBinding::userDefaultsKey, readMouseButtonBinding, [] {});
    Preferences preferences(defaults);
    const Exchange exchange(
        [&] {
            return Setup{buttons.shortcuts(), bindings.records(), preferences.values()};
        },
        [&](const Setup& setup) {
            buttons.replaceShortcuts(setup.buttons, {});
            bindings.replaceAll(setup.mouseBindings, {});
            preferences.take(setup.preferences);
        });
    return carryOutExchange(request, exchange);
}

int printed(const RemoteAnswer& answer) {
    if (!answer.text.isEmpty())
        std::fputs(qUtf8Printable(answer.text + u'\n'), answer.status == 0 ? stdout : stderr);
    return answer.status;
}

} // namespace velmora
