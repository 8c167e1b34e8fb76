#include "overlay/SoftEdge.h"

#include "overlay/BarGround.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmora {

SoftEdge::SoftEdge(Side side, QWidget* strip) : QWidget(strip), side_(side) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SoftEdge::setHiddenWidth(double hidden) {
    const int width = std::min(static_cast<int>(std::ceil(hidden)), maximumWidth);
    const QWidget* strip = parentWidget();
    setGeometry(side_ == Side::left ? 0 : strip->width() - width, 0, width, strip->height());
}

void SoftEdge::paintEvent(QPaintEvent*) {
    const bool isLeft = side_ == Side::left;
    QLinearGradient gradient(isLeft ? 0 : width(), 0, isLeft ? width() : 0, 0);
    QPainter painter(this);
    // Shares of what is there and of the ground that add up to one: a plain coat of the translucent
    // ground would let the buttons through.
    gradient.setColorAt(0, Qt::transparent);
    gradient.setColorAt(1, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(rect(), gradient);
    const double middle = mapTo(window(), rect().center()).x();
    QColor ground = barGround(middle / window()->width());
    gradient.setColorAt(0, ground);
    ground.setAlpha(0);
    gradient.setColorAt(1, ground);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.fillRect(rect(), gradient);
}

} // namespace velmora
