#pragma once

#include "input/Binding.h"

#include <QStringList>
#include <QWidget>

class QLabel;

namespace velmora {

class InputGrants;
class KeyCaptureField;
class KeyCaptureNSView;
class PlainButton;

/// The control that records a key combination: the field in its border, and below it a hint or,
/// once something is captured, a button that clears it. While a Tab was recorded last the hint says
/// how to leave. Takes the focus when it is first shown.
class KeyCaptureView : public QWidget {
    Q_OBJECT
public:
    /// `inputGrants` outlives the control. It writes all three.
    KeyCaptureView(
        Binding<QStringList> modifiers, Binding<QString> key, Binding<bool> isFocused,
        InputGrants& inputGrants, QWidget* parent = nullptr);

    KeyCaptureNSView& view();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateFooter();

    const Binding<QStringList> modifiers_;
    const Binding<QString> key_;
    const Binding<bool> isFocused_;
    KeyCaptureField* const field_;
    QLabel* const hint_;
    PlainButton* const clearButton_;
    QWidget* const outline_;
    bool wasShown_ = false;
    QPropertyNotifier modifiersNotifier_;
    QPropertyNotifier keyNotifier_;
    QPropertyNotifier focusNotifier_;
};

} // namespace velmora
