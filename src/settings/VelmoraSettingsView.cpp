#include "settings/VelmoraSettingsView.h"

#include "foundation/ActionMessages.h"
#include "foundation/LocalizedString.h"
#include "model/ShortcutManager.h"
#include "settings/RecordListPane.h"
#include "settings/ShortcutEditorView.h"
#include "settings/VersionLine.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int restartPadding = 8;

QString alignmentName(ButtonAlignment alignment) {
    return localizedString(
        alignment == ButtonAlignment::left ? "shortcut_alignment_left"
                                           : "shortcut_alignment_right");
}

RecordRow describe(const ShortcutButton& shortcut) {
    return {
        .symbol = shortcut.icon,
        .title = shortcut.title,
        .detail = displayName(shortcut.action),
        .badge = alignmentName(shortcut.alignment)};
}

} // namespace

VelmoraSettingsView::VelmoraSettingsView(
    ShortcutManager& shortcutManager, InputGrants& inputGrants,
    std::optional<QVariantMap> infoDictionary) {
    ShortcutManager& store = shortcutManager;
    auto* pane = new RecordListPane(
        localizedString("shortcuts_title"),
        {.snapshot = [&store] { return snapshot(store.shortcuts(), describe); },
         .remove = [&store](qsizetype index) { store.removeShortcut(index); },
         .move = [&store](qsizetype from, qsizetype to) { store.moveShortcut(from, to); },
         .makeEditor = [&store, &inputGrants](
                           qsizetype index, RecordSource::Done done) -> std::unique_ptr<QWidget> {
             const bool isEditing = index >= 0 && index < store.shortcuts().size();
             const auto onSave = [&store, index, done](const ShortcutButton& button) {
                 const qsizetype position = positionOf(button, store.shortcuts(), index);
                 if (position >= 0)
                     store.updateShortcut(position, button);
                 else
                     store.addShortcut(button);
                 done(button.id());
             };
             return std::make_unique<ShortcutEditorView>(
                 isEditing ? std::optional(store.shortcuts().at(index)) : std::nullopt, onSave,
                 [done] { done({}); }, inputGrants);
         }});
    connect(&store, &ShortcutManager::shortcutsWillChange, pane, &RecordListPane::scheduleReload);
    QPushButton* restart =
        pane->addButton(u"arrow.clockwise"_s, localizedString("restart"), restartPadding);
    connect(restart, &QPushButton::clicked, this, &VelmoraSettingsView::restartApp);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(pane, 1);
    stack->addWidget(new VersionLine(std::move(infoDictionary)));
    setFocusProxy(pane);
}

void VelmoraSettingsView::restartApp() {
    ActionMessages::shared().send(u"restart"_s);
}

} // namespace velmora
