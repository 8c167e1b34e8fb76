#include "settings/MouseSettingsView.h"

#include "foundation/LocalizedString.h"
#include "input/MouseButtonManager.h"
#include "settings/MouseBindingEditorView.h"
#include "settings/RecordListPane.h"
#include "settings/VersionLine.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

RecordRow describe(const MouseButtonBinding& binding) {
    return {
        .symbol = u"computermouse"_s,
        .title = binding.buttonDisplayName(),
        .detail = displayName(binding.action),
        .badge = {}};
}

} // namespace

MouseSettingsView::MouseSettingsView(MouseButtonManager& mouseManager, InputGrants& inputGrants) {
    MouseButtonManager& store = mouseManager;
    auto* pane = new RecordListPane(
        localizedString("mouse_settings_title"),
        {.snapshot = [&store] { return snapshot(store.bindings(), describe); },
         .remove = [&store](qsizetype index) { store.removeBinding(index); },
         .makeEditor = [&store, &inputGrants](
                           qsizetype index, RecordSource::Done done) -> std::unique_ptr<QWidget> {
             const bool isEditing = index >= 0 && index < store.bindings().size();
             const auto onSave = [&store, index, done](const MouseButtonBinding& binding) {
                 const qsizetype position = positionOf(binding, store.bindings(), index);
                 if (position >= 0)
                     store.updateBinding(position, binding);
                 else
                     store.addBinding(binding);
                 done(binding.id());
             };
             return std::make_unique<MouseBindingEditorView>(
                 isEditing ? std::optional(store.bindings().at(index)) : std::nullopt, onSave,
                 [done] { done({}); }, inputGrants);
         }});
    connect(&store, &MouseButtonManager::bindingsWillChange, pane, &RecordListPane::scheduleReload);
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, versionLineRoom());
    stack->addWidget(pane);
    setFocusProxy(pane);
}

} // namespace velmora
