#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace velmora {

class HotKeyManager;
class InputGrants;
class KeyCaptureNSView;
class Preferences;

/// Shows the hot key and records another one, which counts at once. Below it stands what to do, why
/// a combination was not taken, or why the hot key does not work just now. Recording begins with a
/// click or by the button, never by the way of the focus through the window: it takes every key of
/// the session. It ends once the new combination is let go of, with Tab and with Escape.
class HotKeyField : public QWidget {
    Q_OBJECT
public:
    /// What is handed in outlives the field.
    HotKeyField(Preferences& preferences, HotKeyManager& manager, InputGrants& inputGrants);
    ~HotKeyField() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void take(const QStringList& modifiers, const QString& key);
    void endRecording();
    /// Shows the hot key as it is now.
    void update();
    void updateNote();

    Preferences& preferences_;
    HotKeyManager& manager_;
    KeyCaptureNSView* const view_;
    QPushButton* const change_;
    QPushButton* const reset_;
    QLabel* const note_;
    enum class Answer { none, refused, taken };
    Answer answer_ = Answer::none; ///< to what was pressed since recording began
};

} // namespace velmora
