#include "overlay/DraggableNSScrollView.h"

#include "overlay/SoftEdge.h"

#include <QCursor>
#include <QGuiApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cmath>

using namespace std::chrono_literals;

namespace velmora {
namespace {

/// Points that one notch of a wheel (120 units) scrolls.
constexpr double wheelNotch = 48;

} // namespace

DraggableNSScrollView::DraggableNSScrollView(QWidget* parent)
    : QWidget(parent),
      leftEdge_(new SoftEdge(SoftEdge::Side::left, this)),
      rightEdge_(new SoftEdge(SoftEdge::Side::right, this)) {
    decelerationTimer_.setTimerType(Qt::PreciseTimer);
    decelerationTimer_.setInterval(16ms);
    decelerationTimer_.callOnTimeout(this, [this] { handleDecelerationStep(); });
    setupEventMonitor();
}

void DraggableNSScrollView::setupEventMonitor() {
    mouseEventMonitor_.emplace([this](const LocalMouseEvent& event) { handleMouseEvent(event); });
}

void DraggableNSScrollView::setAlignment(Alignment alignment) {
    alignment_ = alignment;
    scrollToPoint(offset_);
}

void DraggableNSScrollView::setDocumentView(QWidget* view) {
    delete documentView_;
    documentView_ = view;
    view->setParent(this);
    view->lower(); // below the edges
    view->installEventFilter(this);
    view->resize(view->width(), height());
    view->show();
    scrollToPoint(0);
}

double DraggableNSScrollView::maxOffset() const {
    return documentView_ ? std::max(documentView_->width() - width(), 0) : 0;
}

void DraggableNSScrollView::handleMouseEvent(const LocalMouseEvent& event) {
    using Kind = LocalMouseEvent::Kind;
    if (!event.window || event.window != window())
        return;
    const QPointF point = mapFrom(event.window, event.locationInWindow);
    // QRectF::contains() counts the far edges in; the point right of the last one is outside.
    const bool inside =
        point.x() >= 0 && point.x() < width() && point.y() >= 0 && point.y() < height();
    if (event.kind == Kind::leftMouseDown)
        isPressed_ = inside;
    if (!inside || !isPressed_)
        return;
    switch (event.kind) {
    case Kind::leftMouseDown:
        stopDeceleration();
        mouseDownPoint_ = point;
        lastDragPoint_ = point;
        isDraggingMode_ = false;
        break;
    case Kind::leftMouseDragged:
        if (QLineF(mouseDownPoint_, point).length() > dragThreshold)
            isDraggingMode_ = true;
        if (isDraggingMode_)
            scrollBy(point.x() - lastDragPoint_.x());
        lastDragPoint_ = point;
        break;
    case Kind::leftMouseUp:
        if (isDraggingMode_)
            startDeceleration(event.movement.x());
        isDraggingMode_ = false;
        break;
    }
}

void DraggableNSScrollView::scrollBy(double deltaX) {
    if (documentView_)
        scrollToPoint(offset_ - deltaX);
}

void DraggableNSScrollView::startDeceleration(double initialVelocity) {
    stopDeceleration();
    if (std::abs(initialVelocity) < 1.0)
        return;
    currentVelocity_ = initialVelocity;
    decelerationTimer_.start();
}

void DraggableNSScrollView::stopDeceleration() {
    decelerationTimer_.stop();
}

void DraggableNSScrollView::handleDecelerationStep() {
    if (!documentView_)
        return stopDeceleration();
    currentVelocity_ *= friction;
    if (std::abs(currentVelocity_) < minVelocity)
        return stopDeceleration();
    const double target = offset_ - currentVelocity_;
    if (target < 0 || target > maxOffset()) {
        currentVelocity_ = 0;
        stopDeceleration();
    }
    scrollToPoint(target);
}

void DraggableNSScrollView::scrollToPoint(double x) {
    offset_ = std::max(std::min(x, maxOffset()), 0.0);
    leftEdge_->setHiddenWidth(offset_);
    rightEdge_->setHiddenWidth(maxOffset() - offset_);
    if (!documentView_)
        return;
    const int slack = std::max(width() - documentView_->width(), 0);
    const int leading = alignment_ == Alignment::trailing ? slack : 0;
    const QPoint position(leading - static_cast<int>(std::lround(offset_)), 0);
    if (position == documentView_->pos())
        return;
    documentView_->move(position);
    refreshHover();
}

void DraggableNSScrollView::refreshHover() {
    if (!underMouse() || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const QPointF global = QCursor::pos();
    const QPointF local = window()->mapFromGlobal(global);
    QMouseEvent rest(
        QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window()->windowHandle(), &rest);
}

void DraggableNSScrollView::wheelEvent(QWheelEvent* event) {
    // A touchpad reports pixels, a wheel notches; a plain wheel scrolls the strip sideways.
    const bool precise = !event->pixelDelta().isNull();
    const QPoint delta = precise ? event->pixelDelta() : event->angleDelta();
    const int along = std::abs(delta.x()) > std::abs(delta.y()) ? delta.x() : delta.y();
    stopDeceleration();
    scrollBy(precise ? along : along * wheelNotch / 120);
    event->accept();
}

void DraggableNSScrollView::resizeEvent(QResizeEvent*) {
    if (documentView_)
        documentView_->resize(documentView_->width(), height());
    scrollToPoint(offset_);
}

bool DraggableNSScrollView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == documentView_ && event->type() == QEvent::Resize)
        scrollToPoint(offset_);
    return false;
}

} // namespace velmora
