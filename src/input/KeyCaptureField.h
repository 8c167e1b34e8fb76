#pragma once

#include "input/Binding.h"

#include <QStringList>
#include <QWidget>

namespace velmora {

class InputGrants;
class KeyCaptureNSView;

/// Ties a KeyCaptureNSView to two bound values and a focus flag that its owner keeps. The view
/// follows each write inside that write, so that a capture's last step comes after it.
class KeyCaptureField : public QWidget {
    Q_OBJECT
public:
    /// `inputGrants` outlives the field.
    KeyCaptureField(
        Binding<QStringList> modifiers, Binding<QString> key, Binding<bool> isFocused,
        InputGrants& inputGrants, QWidget* parent = nullptr);

    KeyCaptureNSView& view() { return *view_; }

private:
    void updateView();

    const Binding<QStringList> modifiers_;
    const Binding<QString> key_;
    const Binding<bool> isFocused_;
    KeyCaptureNSView* const view_;
    QPropertyNotifier modifiersNotifier_;
    QPropertyNotifier keyNotifier_;
    QPropertyNotifier focusNotifier_;
};

} // namespace velmora
