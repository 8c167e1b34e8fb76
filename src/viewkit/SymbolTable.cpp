#include "viewkit/SymbolTable.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// "x,y,side" or "x,y,width,height"; the whole grid when there are no such numbers.
QRectF parseBox(QStringView text) {
    const auto numbers = text.split(u',');
    if (numbers.size() < 3)
        return SymbolLayer().box;
    return {
        numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
        numbers.last().toDouble()};
}

SymbolLayer parseLayer(QStringView text) {
    const auto parts = text.split(u'@');
    const QStringView name = parts.first();
    const QRectF box = parseBox(parts.size() > 1 ? parts[1] : QStringView());
    if (name == u"mirror-x"_s)
        return {SymbolLayer::Kind::mirrorHorizontally, {}, box};
    if (name == u"clear-rect"_s)
        return {SymbolLayer::Kind::clearRectangle, {}, box};
    if (name == u"clear-ellipse"_s)
        return {SymbolLayer::Kind::clearEllipse, {}, box};
    return {SymbolLayer::Kind::drawing, name.toString(), box};
}

} // namespace

SymbolTable parseSymbolTable(QByteArrayView text) {
    SymbolTable table;
    const QString decoded = QString::fromUtf8(text);
    for (const QStringView line : QStringView(decoded).split(u'\n', Qt::SkipEmptyParts)) {
        const auto columns = line.split(u'\t');
        if (line.startsWith(u'#') || columns.size() != 2)
            continue;
        QList<SymbolLayer>& layers = table[columns[0].toString()];
        for (const QStringView layer : columns[1].split(u' ', Qt::SkipEmptyParts))
            layers.append(parseLayer(layer));
    }
    return table;
}

} // namespace velmora
