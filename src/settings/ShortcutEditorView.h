#pragma once

#include "model/ShortcutButton.h"
#include "settings/RecordEditor.h"

namespace velmora {

/// The form that makes a new bar button or changes one.
class ShortcutEditorView : public RecordEditor {
    Q_OBJECT
public:
    using ActionType = velmora::ActionType;

    /// `shortcut` is the record to edit, none to add one. `onSave` receives the finished record.
    /// `inputGrants` outlives the editor.
    ShortcutEditorView(
        const std::optional<ShortcutButton>& shortcut,
        std::function<void(const ShortcutButton&)> onSave, std::function<void()> onCancel,
        InputGrants& inputGrants);
};

} // namespace velmora
