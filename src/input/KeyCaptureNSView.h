#pragma once

#include "platform/EventTap.h"

#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

namespace velmora {

/// Turns the keys pressed while it has the keyboard focus into names, and draws a combination. With
/// focus it takes every key of the session through an event tap, so that no application receives
/// what is being recorded; where there is no tap it takes the keys of its own window. Main thread
/// only.
class KeyCaptureNSView : public QWidget {
    Q_OBJECT
public:
    /// `eventTaps` outlives the view.
    explicit KeyCaptureNSView(EventTaps& eventTaps, QWidget* parent = nullptr);
    ~KeyCaptureNSView() override;

    /// Told of every capture, and with an empty key of every preview of held modifiers.
    std::function<void(const QStringList& modifiers, const QString& key)> onKeyCapture;

    /// When set, answers Return without modifiers, which is then not captured.
    std::function<void()> onDefaultKey;

    /// Forgets the capture and shows the placeholder.
    void reset();
    /// Shows a combination; what has been captured stays as it is.
    void updateDisplay(const QStringList& modifiers, const QString& key);

    /// Captures a pressed key.
    void keyDown(const TapEvent& event);
    /// Previews the modifiers held, as long as no key has been captured.
    void flagsChanged(const TapEvent& event);

    const QStringList& currentModifiers() const { return currentModifiers_; }
    const QString& currentKey() const { return currentKey_; }

Q_SIGNALS:
    /// The keyboard focus came or went; hiding counts as losing it.
    void focusChanged(bool focused);

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void becomeFirstResponder();
    void resignFirstResponder();
    void startMonitoring();
    void stopMonitoring();
    std::optional<TapEvent> handleTapEvent(EventType type, const TapEvent& event);
    void handleWindowKey(QKeyEvent& event);
    void draw(QPainter& painter) const;

    EventTaps& eventTaps_;
    bool hasCapture_ = false; ///< a key, not only modifiers, since the last reset
    QStringList currentModifiers_;
    QString currentKey_;
    std::unique_ptr<EventTap> eventMonitor_;
    bool tapDelivers_ = false; ///< keys come through the tap
};

} // namespace velmora
