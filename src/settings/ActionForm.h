#pragma once

#include "input/Binding.h"
#include "settings/ActionFields.h"

#include <QWidget>
#include <array>

class QLabel;
class QLineEdit;

namespace velmora {

class InputGrants;
class KeyCaptureView;

/// The rows that set an action, in a group of an editor's form: the type, and the parameters of the
/// type chosen.
class ActionForm : public QWidget {
    Q_OBJECT
public:
    /// `inputGrants` outlives the form.
    ActionForm(const QString& heading, ActionFields fields, InputGrants& inputGrants);

    /// What is in the form now.
    ActionFields fields() const;

    /// Whether the control that records key combinations has the keyboard focus.
    const Binding<bool>& isKeyCaptureFocused() const { return isKeyCaptureFocused_; }
    KeyCaptureView& keyCapture() { return *keyCapture_; }

    /// Gives the fields the form in which they are saved. False when what was typed has none; the
    /// user is then told so where it stands.
    bool complete();

Q_SIGNALS:
    void fieldsChanged();
    /// The parameters of another type are shown.
    void typeChanged();

private:
    QWidget* makeAppParameter();
    QWidget* makeUrlParameter();
    QWidget* makeCommandParameter();
    void setType(ActionType type);
    /// Shows below the URL what it will be saved as, where that is not what is typed.
    void updateUrlNote();
    void setUrlNote(const QString& note, QPalette::ColorRole color = QPalette::PlaceholderText);
    void setBundleId(const QString& bundleId);
    void showAppPicker();

    ActionFields fields_;
    const Binding<QStringList> keyModifiers_;
    const Binding<QString> keyValue_;
    const Binding<bool> isKeyCaptureFocused_;
    QLineEdit* const appName_;
    QLabel* const bundleId_;
    QLineEdit* const url_;
    QLabel* const urlNote_;
    KeyCaptureView* const keyCapture_;
    const std::array<QWidget*, actionTypeCount> parameters_; ///< by type
    QLabel* parameterLabel_ = nullptr;                       ///< of the type chosen
    QPropertyNotifier modifiersNotifier_;
    QPropertyNotifier keyNotifier_;
};

} // namespace velmora
