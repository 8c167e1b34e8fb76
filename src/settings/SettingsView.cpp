#include "settings/SettingsView.h"

#include "foundation/LocalizedString.h"
#include "model/EditHistory.h"
#include "settings/GeneralSettingsView.h"
#include "settings/MouseSettingsView.h"
#include "settings/RecordListPane.h"
#include "viewkit/SymbolIcon.h"
#include "viewkit/Symbols.h"
#include "viewkit/WindowTheme.h"

#include <QTabBar>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {
/// More room between a tab's symbol and its title than the style leaves, in points.
constexpr int iconTextSpacing = 6;
} // namespace

SettingsView::SettingsView(const SettingsServices& services) {
    const int side = Symbols::sideLength(WindowTheme::fontSize);
    setIconSize(QSize(side + iconTextSpacing, side));
    setMinimumSize(contentSize);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(false);
    addTab(
        new VelmoraSettingsView(
            services.shortcutManager, services.inputGrants, services.infoDictionary),
        symbolIcon(u"menubar.rectangle"_s), localizedString("settings_tab_velmora"));
    addTab(
        new MouseSettingsView(services.mouseManager, services.inputGrants),
        symbolIcon(u"computermouse"_s), localizedString("settings_tab_mouse"));
    addTab(
        new GeneralSettingsView(
            services.preferences, services.hotKeyManager, services.inputGrants, services.loginItem,
            services.exchange),
        symbolIcon(u"gearshape"_s), localizedString("settings_tab_general"));
    connect(&services.history, &EditHistory::stepped, this, &SettingsView::reveal);
}

void SettingsView::reveal(const QUuid& record) {
    for (int tab = 0; tab < count(); ++tab) {
        const auto panes = widget(tab)->findChildren<RecordListPane*>();
        if (panes.isEmpty() || !panes.first()->knows(record))
            continue;
        setCurrentIndex(tab);
        panes.first()->reveal(record);
        return;
    }
}

} // namespace velmora
