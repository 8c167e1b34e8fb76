#include "viewkit/Theme.h"

#include <QGuiApplication>
#include <QPalette>

namespace velmora::Theme {

QFont systemFont(int size, QFont::Weight weight) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(size);
    font.setWeight(weight);
    return font;
}

QColor withOpacity(QColor colour, float opacity) {
    colour.setAlphaF(opacity);
    return colour;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

} // namespace velmora::Theme
