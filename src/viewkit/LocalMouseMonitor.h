#pragma once

#include <QPointF>
#include <functional>
#include <memory>

class QWidget;

namespace velmora {

/// What an application-local monitor of the left mouse button sees.
struct LocalMouseEvent {
    enum class Kind { leftMouseDown, leftMouseUp, leftMouseDragged };
    Kind kind;
    QWidget* window;          ///< the top-level widget that the event is for; null when unknown
    QPointF locationInWindow; ///< points, origin at the window's top left
    /// Of a release: the points that the pointer moves in 16 ms at its speed of that moment, on any
    /// mouse; none when it rested.
    QPointF movement = {};
};

/// Watches the left mouse button in all windows of the application, before any view, and passes
/// every event on. Ends with the object. Main thread only.
class LocalMouseMonitor {
public:
    /// The handler must not destroy the monitor.
    using Handler = std::function<void(const LocalMouseEvent&)>;

    explicit LocalMouseMonitor(Handler handler);
    LocalMouseMonitor(LocalMouseMonitor&&) noexcept;
    LocalMouseMonitor& operator=(LocalMouseMonitor&&) noexcept;
    ~LocalMouseMonitor();

private:
    class Filter;
    std::unique_ptr<Filter> filter_;
};

} // namespace velmora
