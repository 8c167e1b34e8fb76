#include "viewkit/LocalMouseMonitor.h"

#include "viewkit/DragThrottle.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace velmora {

/// Sees the events as they reach a window, before they are handed to its views.
class LocalMouseMonitor::Filter : public QObject {
public:
    explicit Filter(Handler handler) : handler_(std::move(handler)) {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { deliverPending(); });
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
    using Kind = LocalMouseEvent::Kind;

    void handle(QWindow& window, const QMouseEvent& event) {
        if (event.type() == QEvent::MouseMove) {
            if (event.buttons() & Qt::LeftButton)
                move(window, event);
        } else if (event.button() == Qt::LeftButton) {
            throttle_.reset();
            timer_.stop();
            const bool down = event.type() == QEvent::MouseButtonPress;
            window_ = QWidget::find(window.winId());
            handler_({down ? Kind::leftMouseDown : Kind::leftMouseUp, window_, event.position()});
        }
    }

    void move(QWindow& window, const QMouseEvent& event) {
        window_ = QWidget::find(window.winId());
        const auto position = throttle_.move(event.position(), event.timestamp());
        if (const auto remaining = throttle_.remaining(event.timestamp())) {
            dueTime_ = event.timestamp() + *remaining;
            timer_.start(static_cast<int>(*remaining));
        } else {
            timer_.stop();
        }
        if (position)
            handler_({Kind::leftMouseDragged, window_, *position});
    }

    void deliverPending() {
        if (const auto position = throttle_.takePending(dueTime_))
            handler_({Kind::leftMouseDragged, window_, *position});
    }

    Handler handler_;
    DragThrottle throttle_;
    QTimer timer_;
    QPointer<QWidget> window_;
    quint64 dueTime_ = 0;
};

LocalMouseMonitor::LocalMouseMonitor(Handler handler)
    : filter_(std::make_unique<Filter>(std::move(handler))) {}
LocalMouseMonitor::LocalMouseMonitor(LocalMouseMonitor&&) noexcept = default;
LocalMouseMonitor& LocalMouseMonitor::operator=(LocalMouseMonitor&&) noexcept = default;
LocalMouseMonitor::~LocalMouseMonitor() = default;

} // namespace velmora
