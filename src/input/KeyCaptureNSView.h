#pragma once

#include "platform/InputGrants.h"

#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

namespace velmora {

/// Turns the keys pressed while it has the keyboard focus into names, and draws a combination. With
/// focus it is granted every key of the session, so that no application receives what is being
/// recorded; where the session does not grant that, it takes the keys of its own window. It takes
/// nothing from keys that were down before. Tab is recorded as well; pressed once more it puts back
/// what was there and moves the focus on, or back with Shift. Main thread only.
class KeyCaptureNSView : public QWidget {
    Q_OBJECT
public:
    /// `inputGrants` outlives the view.
    explicit KeyCaptureNSView(InputGrants& inputGrants, QWidget* parent = nullptr);
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
    void keyDown(const KeyInput& event);
    /// Previews the modifiers held, as long as no key has been captured.
    void flagsChanged(const KeyInput& event);

    const QStringList& currentModifiers() const { return shown_.modifiers; }
    const QString& currentKey() const { return shown_.key; }
    /// The position of the key captured last; kNoKeyCode for none that is known.
    KeyCode currentKeyCode() const { return keyCode_; }

    /// The combination shown, to be read aloud: "Super+Shift+4"; empty for none.
    QString spokenText() const;

    /// Whether a Tab was recorded last, so that another one leaves.
    bool isTabWayOut() const { return replacedByTab_.has_value(); }

Q_SIGNALS:
    /// The keyboard focus came or went; hiding counts as losing it.
    void focusChanged(bool focused);
    void tabWayOutChanged();
    /// The last modifier that was held has been let go of.
    void modifiersReleased();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Combination {
        QStringList modifiers;
        QString key;
        bool operator==(const Combination&) const = default;
    };

    void becomeFirstResponder();
    void resignFirstResponder();
    void startMonitoring();
    void stopMonitoring();
    void handleSessionKey(const KeyInput& event);
    void handleWindowKey(QKeyEvent& event);
    /// Whether `event` is the user's answer: some key went down since the focus came, and for a key
    /// this very one.
    bool isAnswer(const KeyInput& event);
    void leaveByTab();
    void setReplacedByTab(std::optional<Combination> replaced);
    void draw(QPainter& painter) const;

    InputGrants& inputGrants_;
    bool hasCapture_ = false; ///< a key, not only modifiers, since the last reset
    Combination shown_;
    KeyCode keyCode_ = kNoKeyCode;
    std::optional<Combination> beforePreview_; ///< what the modifiers held now have replaced
    std::optional<Combination> replacedByTab_; ///< while a Tab is what was recorded last
    std::unique_ptr<InputGrant> eventMonitor_;
    bool sawFreshPress_ = false; ///< since the focus came
    bool grantDelivers_ = false; ///< keys come through the grant
};

} // namespace velmora
