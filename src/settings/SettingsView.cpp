#include "settings/SettingsView.h"

#include "foundation/LocalizedString.h"
#include "settings/MouseSettingsView.h"
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
}

} // namespace velmora
