#include "viewkit/LocalMouseMonitor.h"

#include "viewkit/VelocityTracker.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace velmora {

/// Sees the events as they reach a window, before they are handed to its views.
class LocalMouseMonitor::Filter : public QObject {
public:
    explicit Filter(Handler handler) : handler_(std::move(handler)) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        const bool wanted = type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
                            type == QEvent::MouseButtonRelease;
        if (wanted && watched->isWindowType())
            handle(static_cast<QWindow&>(*watched), static_cast<const QMouseEvent&>(*event));
        return false;
    }

private:
    void handle(const QWindow& window, const QMouseEvent& event) {
        using Kind = LocalMouseEvent::Kind;
        const bool isMove = event.type() == QEvent::MouseMove;
        if (isMove ? !(event.buttons() & Qt::LeftButton) : event.button() != Qt::LeftButton)
            return;
        LocalMouseEvent seen{
            .kind = Kind::leftMouseDragged,
            .window = QWidget::find(window.winId()),
            .locationInWindow = event.position()};
        if (event.type() == QEvent::MouseButtonPress) {
            seen.kind = Kind::leftMouseDown;
            tracker_.press(event.position(), event.timestamp());
        } else {
            tracker_.move(event.position(), event.timestamp());
        }
        if (event.type() == QEvent::MouseButtonRelease) {
            seen.kind = Kind::leftMouseUp;
            seen.movement = tracker_.movement(event.timestamp());
        }
        handler_(seen);
    }

    Handler handler_;
    VelocityTracker tracker_;
};

LocalMouseMonitor::LocalMouseMonitor(Handler handler)
    : filter_(std::make_unique<Filter>(std::move(handler))) {}
LocalMouseMonitor::LocalMouseMonitor(LocalMouseMonitor&&) noexcept = default;
LocalMouseMonitor& LocalMouseMonitor::operator=(LocalMouseMonitor&&) noexcept = default;
LocalMouseMonitor::~LocalMouseMonitor() = default;

} // namespace velmora
