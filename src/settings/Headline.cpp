#include "settings/Headline.h"

#include "viewkit/Theme.h"

#include <QLabel>

namespace velmora {
namespace {

constexpr int headlineSize = 15;
/// Whatever the font: those of some scripts ask for more than their glyphs take.
constexpr int lineHeight = 18;

} // namespace

QLabel* headline(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::systemFont(headlineSize, QFont::DemiBold));
    label->setFixedHeight(lineHeight);
    return label;
}

} // namespace velmora
