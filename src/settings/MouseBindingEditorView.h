#pragma once

#include "model/MouseButtonBinding.h"
#include "settings/RecordEditor.h"

namespace velmora {

/// The form that makes a new mouse binding or changes one.
class MouseBindingEditorView : public RecordEditor {
    Q_OBJECT
public:
    using ActionType = velmora::ActionType;

    /// `binding` is the record to edit, none to add one. `onSave` receives the finished record.
    /// `inputGrants` outlives the editor.
    MouseBindingEditorView(
        const std::optional<MouseButtonBinding>& binding,
        std::function<void(const MouseButtonBinding&)> onSave, std::function<void()> onCancel,
        InputGrants& inputGrants);
};

} // namespace velmora
