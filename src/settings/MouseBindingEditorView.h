#pragma once

#include "model/MouseButtonBinding.h"
#include "settings/RecordEditor.h"

namespace velmora {

class PopUpButton;

/// The form that makes a new mouse binding or changes one.
class MouseBindingEditorView : public RecordEditor {
    Q_OBJECT
public:
    using ActionType = velmora::ActionType;

    /// `binding` is the record to edit, none to add one. `onSave` receives the finished record.
    /// `eventTaps` outlives the editor.
    MouseBindingEditorView(
        std::optional<MouseButtonBinding> binding,
        std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
        EventTaps& eventTaps);

protected:
    void save() override;

private:
    MouseBindingEditorView(
        PopUpButton* buttonPicker, std::optional<MouseButtonBinding> binding,
        std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
        EventTaps& eventTaps);

    PopUpButton* const buttonPicker_; ///< item data: the button's number
    const std::optional<MouseButtonBinding> binding_;
    const std::function<void(const MouseButtonBinding&)> onSave_;
};

} // namespace velmora
