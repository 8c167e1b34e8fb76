#pragma once

#include "model/ShortcutButton.h"
#include "settings/RecordEditor.h"

#include <QProperty>

class QLineEdit;

namespace velmora {

class SegmentedPicker;

/// The form that makes a new bar button or changes one.
class ShortcutEditorView : public RecordEditor {
    Q_OBJECT
public:
    using ActionType = velmora::ActionType;

    /// `shortcut` is the record to edit, none to add one. `onSave` receives the finished record.
    /// `eventTaps` outlives the editor.
    ShortcutEditorView(
        std::optional<ShortcutButton> shortcut, std::function<void(const ShortcutButton&)> onSave,
        std::function<void()> onCancel, EventTaps& eventTaps);

protected:
    bool isValid() const override;
    void save() override;

private:
    /// The controls of the first group; part of the editor's view once it is built.
    struct BasicGroup {
        FormGroup* group;
        QLineEdit* title;
        QLineEdit* icon;
        QWidget* iconPreview;
        SegmentedPicker* alignment;
        QPushButton* select;
    };
    static BasicGroup makeBasicGroup(const std::optional<ShortcutButton>& shortcut);
    ShortcutEditorView(
        BasicGroup basic, std::optional<ShortcutButton> shortcut,
        std::function<void(const ShortcutButton&)> onSave, std::function<void()> onCancel,
        EventTaps& eventTaps);
    void showIconPicker();

    const BasicGroup basic_;
    const std::optional<ShortcutButton> shortcut_;
    const std::function<void(const ShortcutButton&)> onSave_;
    QPropertyNotifier focusNotifier_;
};

} // namespace velmora
