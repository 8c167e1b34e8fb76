#include "settings/Headline.h"

#include "viewkit/Theme.h"

#include <QLabel>

namespace velmora {

QLabel* headline(const QString& text) {
    constexpr int headlineSize = 15;
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::systemFont(headlineSize, QFont::DemiBold));
    return label;
}

} // namespace velmora
