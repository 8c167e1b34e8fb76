#pragma once

#include "viewkit/LocalMouseMonitor.h"

#include <QTimer>
#include <QWidget>
#include <optional>

namespace velmora {

class SoftEdge;

/// A horizontal strip without scrollers that is dragged like a sheet of paper and coasts on when
/// let go while moving. It watches presses, never consumes them: what lies inside keeps its clicks.
/// Where there is more than it shows, its end is a soft edge.
/// All positions in points of the strip's own coordinates, origin at the top left.
class DraggableNSScrollView : public QWidget {
    Q_OBJECT
public:
    explicit DraggableNSScrollView(QWidget* parent = nullptr);

    /// Factor on the coasting speed at each tick.
    static constexpr double friction = 0.98;
    /// Points a tick below which coasting stops.
    static constexpr double minVelocity = 0.5;
    /// Points from the press that the pointer has to pass before it drags.
    static constexpr double dragThreshold = 5.0;

    /// Where a document narrower than the strip stands.
    enum class Alignment { leading, trailing };
    void setAlignment(Alignment alignment);

    /// Takes ownership of `view`, which keeps its width; its height becomes the strip's.
    void setDocumentView(QWidget* view);
    QWidget* documentView() const { return documentView_; }

    /// Where the content stands: 0 to maxOffset().
    double offset() const { return offset_; }
    double maxOffset() const;
    double currentVelocity() const { return currentVelocity_; }
    bool isDraggingMode() const { return isDraggingMode_; }
    bool isCoasting() const { return decelerationTimer_.isActive(); }

    /// Moves the content by a pointer movement of `deltaX`: to the right shows what is further
    /// left. Stops at the ends.
    void scrollBy(double deltaX);
    /// Coasts with a drag delta of `initialVelocity` points a tick of 16 ms; under 1 not at all.
    void startDeceleration(double initialVelocity);
    void stopDeceleration();
    /// One tick of coasting.
    void handleDecelerationStep();

    /// What the strip does on an event of the application. Those of other windows or outside the
    /// strip scroll nothing, nor does a drag that began there.
    void handleMouseEvent(const LocalMouseEvent& event);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setupEventMonitor();
    void scrollToPoint(double x);
    /// Lets the views below a resting pointer know that the content moved under it.
    void refreshHover();

    QTimer decelerationTimer_;
    double currentVelocity_ = 0;
    QPointF lastDragPoint_;
    QPointF mouseDownPoint_;
    bool isPressed_ = false; ///< the last press was in the strip
    bool isDraggingMode_ = false;
    std::optional<LocalMouseMonitor> mouseEventMonitor_;

    QWidget* documentView_ = nullptr;
    SoftEdge* leftEdge_;
    SoftEdge* rightEdge_;
    Alignment alignment_ = Alignment::leading;
    double offset_ = 0;
};

} // namespace velmora
