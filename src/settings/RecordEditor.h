#pragma once

#include "settings/ActionFields.h"

#include <QProperty>
#include <QWidget>
#include <functional>
#include <optional>

class QPushButton;
class QScrollArea;

namespace velmora {

class ActionForm;
class InputGrants;
class FormGroup;

/// The editor of a record: the heading, a scrolling form whose last group sets the action, the
/// buttons that cancel and save, and the question before a shell command is saved. To be shown in a
/// sheet, which it does not close itself.
class RecordEditor : public QWidget {
    Q_OBJECT
public:
    /// What makes it the editor of one kind of record.
    struct Kind {
        QString heading;
        FormGroup* group;                     ///< the record's own; becomes a part of the form
        QWidget* firstControl;                ///< gets the focus where the action has no say in it
        QString actionHeading;                ///< of the group that sets the action
        std::optional<ShortcutAction> action; ///< the one to edit
        QSize size;         ///< in points; wider where a language, higher where an action needs it
        bool recordsReturn; ///< whether the key recorder takes Return, or leaves it to Save
        std::function<bool()> isComplete; ///< whether the group holds what it needs
        /// Hands the finished record over.
        std::function<void(const ShortcutAction& action)> save;
    };
    /// `onCancel` runs when the user cancels. `inputGrants` outlives the editor.
    RecordEditor(Kind kind, std::function<void()> onCancel, InputGrants& inputGrants);

    ActionForm& actionForm() { return *actionForm_; }
    QPushButton& saveButton() { return *save_; }

    /// Saves, for a shell command once the user has answered the question. Nothing is saved while
    /// the form is incomplete or holds what is no URL.
    void requestSave();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeForm();
    bool isComplete() const;
    void save();
    void updateSaveButton();
    /// Brings the group that sets the action into sight.
    void scrollToAction();
    /// Takes the height at which the form need not scroll, as far as the screen allows.
    void fitHeight();

    const Kind kind_;
    const std::function<void()> onCancel_;
    ActionForm* const actionForm_;
    QScrollArea* const scrollArea_;
    QPushButton* const save_;
    QPropertyNotifier focusNotifier_;
};

} // namespace velmora
