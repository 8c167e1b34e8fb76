#include "viewkit/Theme.h"

#include <QGuiApplication>

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

} // namespace velmora::Theme
