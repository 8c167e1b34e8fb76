#pragma once

#include "platform/PanelWindow.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

namespace velmora::test {

/// Panel content that is red at its left end and blue at its right one and counts presses.
class GradientView : public QWidget {
public:
    int presses = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QLinearGradient gradient(0, 0, width(), 0);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        QPainter(this).fillRect(rect(), gradient);
    }
    void mousePressEvent(QMouseEvent* event) override {
        ++presses;
        event->accept();
    }
};

/// Whether `color` is one of the gradient's: no green, red and blue to the full together.
inline bool isGradient(QRgb color) {
    return qGreen(color) == 0 && std::abs(qRed(color) + qBlue(color) - 255) <= 2;
}

} // namespace velmora::test
