#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QKeyEvent;

namespace velmora {

/// Keeps a key that is held from acting twice: while it lives, a repeat reaches only the window or
/// menu that saw the key go down, so that what opens or comes to light under a held key hears
/// nothing of it. Return, Escape and Space, which answer, repeat only as text. Main thread only.
class HeldKeys : public QObject {
    Q_OBJECT
public:
    explicit HeldKeys(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether a repeat may act at `place`.
    bool allows(const QKeyEvent& repeat, const QObject* place) const;

    struct Release {
        quint32 key = 0;
        quint64 time = 0; ///< the server's, milliseconds; 0 for unknown
        QPointer<QObject> place;
    };

    QHash<quint32, QPointer<QObject>> places_; ///< where each key went down, by scan code
    Release lastRelease_;
    const QEvent* corrected_ = nullptr; ///< being sent on, with the mark that it should have
};

} // namespace velmora
