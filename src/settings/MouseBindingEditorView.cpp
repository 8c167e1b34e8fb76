#include "settings/MouseBindingEditorView.h"

#include "foundation/LocalizedString.h"
#include "settings/FormGroup.h"
#include "viewkit/PopUpButton.h"

namespace velmora {
namespace {

constexpr std::int64_t firstOffered = 2;
constexpr std::int64_t initialButton = 3;

/// The keys of the buttons offered, from `firstOffered` on.
constexpr const char* offeredButtons[] = {"mouse_btn_middle", "mouse_btn_4", "mouse_btn_5",
                                          "mouse_btn_6",      "mouse_btn_7", "mouse_btn_8",
                                          "mouse_btn_9"};

PopUpButton* makeButtonPicker(const std::optional<MouseButtonBinding>& binding) {
    auto* picker = new PopUpButton(localizedString("mouse_btn_label"));
    for (std::int64_t number = firstOffered; const char* key : offeredButtons)
        picker->addItem(localizedString(key), qlonglong(number++));
    const qlonglong selected = binding ? binding->buttonNumber : initialButton;
    // Hand-edited data may hold a button that is not offered: it stays as it is unless changed.
    if (picker->findData(selected) < 0)
        picker->addItem(binding->buttonDisplayName(), selected);
    picker->setCurrentIndex(picker->findData(selected));
    picker->setMinimumWidth(FormGroup::pickerWidth);
    return picker;
}

RecordEditor::Kind makeKind(
    const std::optional<MouseButtonBinding>& binding,
    std::function<void(const MouseButtonBinding&)> onSave) {
    PopUpButton* picker = makeButtonPicker(binding);
    auto* group = new FormGroup(localizedString("mouse_button"));
    group->addRow(picker->accessibleName(), {picker}, nullptr);
    return {
        .heading = localizedString(binding ? "mouse_edit_title" : "mouse_add_title"),
        .group = group,
        .firstControl = picker,
        .actionHeading = localizedString("mouse_action_label"),
        .action = binding ? std::optional(binding->action) : std::nullopt,
        .size = {500, 400},
        .recordsReturn = false,
        .isComplete = [] { return true; },
        .save =
            [picker, onSave = std::move(onSave),
             id = binding ? binding->id() : QUuid::createUuid()](const ShortcutAction& action) {
                onSave({picker->currentData().toLongLong(), action, id});
            }};
}

} // namespace

MouseBindingEditorView::MouseBindingEditorView(
    const std::optional<MouseButtonBinding>& binding,
    std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
    InputGrants& inputGrants)
    : RecordEditor(makeKind(binding, std::move(onSave)), std::move(onCancel), inputGrants) {}

} // namespace velmora
