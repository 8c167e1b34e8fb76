#pragma once

#include <QProperty>
#include <QStringList>
#include <QWidget>

namespace velmora {

class EventTaps;
class KeyCaptureNSView;

/// Ties a KeyCaptureNSView to two bound values and a focus flag that its owner keeps. The view
/// follows each write inside that write, so that a capture's last step comes after it.
class KeyCaptureField : public QWidget {
    Q_OBJECT
public:
    /// The bound values and `eventTaps` outlive the field.
    KeyCaptureField(
        QProperty<QStringList>& modifiers, QProperty<QString>& key, QProperty<bool>& isFocused,
        EventTaps& eventTaps, QWidget* parent = nullptr);

    KeyCaptureNSView& view() { return *view_; }

private:
    void updateView();

    QProperty<QStringList>& modifiers_;
    QProperty<QString>& key_;
    QProperty<bool>& isFocused_;
    KeyCaptureNSView* const view_;
    QPropertyNotifier modifiersNotifier_;
    QPropertyNotifier keyNotifier_;
    QPropertyNotifier focusNotifier_;
};

} // namespace velmora
