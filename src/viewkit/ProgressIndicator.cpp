#include "viewkit/ProgressIndicator.h"

#include "viewkit/Theme.h"

#include <QPainter>
#include <QTimerEvent>

namespace velmora {
namespace {

constexpr int spokes = 12;
constexpr int millisecondsPerStep = 80;

} // namespace

ProgressIndicator::ProgressIndicator() {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ProgressIndicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = qMin(width(), height()) / 2.0;
    painter.translate(rect().toRectF().center());
    painter.rotate(step_ * 360.0 / spokes);
    const QColor colour = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        const QColor faded = Theme::withOpacity(colour, 0.1F + 0.6F * float(spoke) / spokes);
        painter.setPen(QPen(faded, radius * 0.15, Qt::SolidLine, Qt::RoundCap));
        painter.rotate(360.0 / spokes);
        painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
    }
}

void ProgressIndicator::timerEvent(QTimerEvent*) {
    step_ = (step_ + 1) % spokes;
    update();
}

void ProgressIndicator::showEvent(QShowEvent*) {
    timer_.start(millisecondsPerStep, this);
}

void ProgressIndicator::hideEvent(QHideEvent*) {
    timer_.stop();
}

} // namespace velmora
