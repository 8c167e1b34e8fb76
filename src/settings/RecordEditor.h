#pragma once

#include "settings/ActionFields.h"

#include <QWidget>
#include <functional>
#include <optional>

class QPushButton;
class QScrollArea;

namespace velmora {

class ActionForm;
class EventTaps;
class FormGroup;

/// What the editors share: the heading, the scrolling form that ends with the action, the buttons
/// that cancel and save, and the question before a shell command is saved. To be shown in a sheet,
/// which it does not close itself.
class RecordEditor : public QWidget {
    Q_OBJECT
public:
    ActionForm& actionForm() { return *actionForm_; }
    QPushButton& saveButton() { return *save_; }

    /// Saves, for a shell command once the user has answered the question. Nothing is saved while
    /// the form is incomplete or holds what is no URL.
    void requestSave();

protected:
    struct Texts {
        QString heading;
        QString actionHeading; ///< of the group that sets the action
    };
    /// `action` is the one to edit, if any; `onCancel` runs when the user cancels.
    RecordEditor(
        const Texts& texts, FormGroup* firstGroup, const std::optional<ShortcutAction>& action,
        EventTaps& eventTaps, std::function<void()> onCancel);

    /// Whether what the form holds can be saved; here, whether the action is complete.
    virtual bool isValid() const;
    /// Hands the finished record over.
    virtual void save() = 0;

    /// Call whenever isValid() may have changed, and once the form is complete.
    void updateSaveButton();
    /// Fixes the editor at `size`, wider where a language needs it, and higher where the action
    /// does; `first` gets the focus when the action has no say in it.
    void finish(QSize size, QWidget* first);

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Brings the group that sets the action into sight.
    void scrollToAction();
    /// Takes the height at which the form need not scroll, as far as the screen allows.
    void fitHeight();

    QScrollArea* scrollArea_;
    ActionForm* actionForm_;
    QPushButton* save_;
    int leastHeight_ = 0;
    const std::function<void()> onCancel_;
};

} // namespace velmora
