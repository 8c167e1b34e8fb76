#include "viewkit/PlainButton.h"

#include "viewkit/ToolTip.h"

#include <QHelpEvent>
#include <QLineF>
#include <QMouseEvent>

namespace velmora {

PlainButton::PlainButton(QWidget* parent) : QAbstractButton(parent) {}

bool PlainButton::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QAbstractButton::event(event);
    ToolTip::show(static_cast<const QHelpEvent&>(*event), this, help());
    return true;
}

void PlainButton::enterEvent(QEnterEvent*) {
    setHovered(true);
}

void PlainButton::leaveEvent(QEvent*) {
    setHovered(false);
}

void PlainButton::setHovered(bool hovered) {
    if (hovered == isHovered_)
        return;
    isHovered_ = hovered;
    update();
}

void PlainButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        pressPoint_ = event->globalPosition();
        isDragged_ = false;
    }
    QAbstractButton::mousePressEvent(event);
}

void PlainButton::mouseMoveEvent(QMouseEvent* event) {
    judgeDrag(*event);
    if (!isDragged_)
        QAbstractButton::mouseMoveEvent(event);
}

void PlainButton::mouseReleaseEvent(QMouseEvent* event) {
    judgeDrag(*event);
    QAbstractButton::mouseReleaseEvent(event);
}

void PlainButton::judgeDrag(const QMouseEvent& event) {
    if (dragThreshold_ && QLineF(pressPoint_, event.globalPosition()).length() > *dragThreshold_) {
        isDragged_ = true;
        setDown(false);
    }
}

} // namespace velmora
