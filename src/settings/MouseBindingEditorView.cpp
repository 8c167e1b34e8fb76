#include "settings/MouseBindingEditorView.h"

#include "foundation/LocalizedString.h"
#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "settings/ActionForm.h"
#include "settings/FormGroup.h"
#include "viewkit/PopUpButton.h"

namespace velmora {
namespace {

constexpr QSize editorSize(500, 400);
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

FormGroup* makeButtonGroup(PopUpButton* picker) {
    auto* group = new FormGroup(localizedString("mouse_button"));
    group->addRow(localizedString("mouse_btn_label"), {picker}, nullptr);
    return group;
}

} // namespace

MouseBindingEditorView::MouseBindingEditorView(
    std::optional<MouseButtonBinding> binding,
    std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
    EventTaps& eventTaps)
    : MouseBindingEditorView(
          makeButtonPicker(binding), binding, std::move(onSave), std::move(onCancel), eventTaps) {}

MouseBindingEditorView::MouseBindingEditorView(
    PopUpButton* buttonPicker, std::optional<MouseButtonBinding> binding,
    std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
    EventTaps& eventTaps)
    : RecordEditor(
          {.heading = localizedString(binding ? "mouse_edit_title" : "mouse_add_title"),
           .actionHeading = localizedString("mouse_action_label")},
          makeButtonGroup(buttonPicker), binding ? std::optional(binding->action) : std::nullopt,
          eventTaps, std::move(onCancel)),
      buttonPicker_(buttonPicker),
      binding_(std::move(binding)),
      onSave_(std::move(onSave)) {
    actionForm().keyCapture().view().onDefaultKey = [this] { requestSave(); };
    finish(editorSize, buttonPicker_);
}

void MouseBindingEditorView::save() {
    onSave_(MouseButtonBinding(
        buttonPicker_->currentData().toLongLong(), actionForm().fields().action(),
        binding_ ? binding_->id() : QUuid::createUuid()));
}

} // namespace velmora
