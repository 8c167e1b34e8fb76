#include "viewkit/Symbols.h"

#include "viewkit/SymbolTable.h"

#include <QFile>
#include <QPaintDevice>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

using namespace Qt::StringLiterals;

// The resources live in a static library: nobody else pulls them in. (Must be outside namespaces.)
static void initializeResources() {
    Q_INIT_RESOURCE(symbols);
}

namespace velmora::Symbols {
namespace {

const SymbolTable& table() {
    static const SymbolTable loaded = [] {
        initializeResources();
        QFile file(u":/symbols/symbols.tsv"_s);
        return file.open(QIODevice::ReadOnly) ? parseSymbolTable(file.readAll()) : SymbolTable();
    }();
    return loaded;
}

void paintLayer(QImage& image, const SymbolLayer& layer) {
    if (layer.kind == SymbolLayer::Kind::mirrorHorizontally) {
        image = image.mirrored(true, false);
        return;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width() / 16.0, image.height() / 16.0);
    if (layer.kind == SymbolLayer::Kind::drawing) {
        QSvgRenderer(u":/symbols/%1.svg"_s.arg(layer.drawing)).render(&painter, layer.box);
        return;
    }
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    if (layer.kind == SymbolLayer::Kind::clearEllipse)
        painter.drawEllipse(layer.box);
    else
        painter.drawRect(layer.box);
}

QPixmap draw(const QList<SymbolLayer>& layers, int pixels, const QColor& colour) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (const SymbolLayer& layer : layers)
        paintLayer(image, layer);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    painter.end();
    return QPixmap::fromImage(std::move(image));
}

struct Key {
    QString name;
    int pixels;
    double devicePixelRatio;
    QRgb colour;
    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed = 0) noexcept {
    return qHashMulti(seed, key.name, key.pixels, key.devicePixelRatio, key.colour);
}

} // namespace

bool contains(const QString& name) {
    return table().contains(name);
}

int sideLength(int fontSize) {
    return static_cast<int>(std::lround(fontSize * 7 / 6.0));
}

QPixmap pixmap(const QString& name, double side, double devicePixelRatio, const QColor& colour) {
    const auto found = table().constFind(name);
    const int pixels = static_cast<int>(std::lround(side * devicePixelRatio));
    if (found == table().cend() || pixels < 1)
        return {};
    static QHash<Key, QPixmap> drawn;
    QPixmap& entry = drawn[{name, pixels, devicePixelRatio, colour.rgba()}];
    if (entry.isNull()) {
        entry = draw(*found, pixels, colour);
        entry.setDevicePixelRatio(devicePixelRatio);
    }
    return entry;
}

void paint(QPainter& painter, const QString& name, const QRectF& rect, const QColor& colour) {
    const double side = std::min(rect.width(), rect.height());
    const QPixmap picture = pixmap(name, side, painter.device()->devicePixelRatio(), colour);
    if (picture.isNull())
        return;
    const QPointF topLeft = rect.center() - QPointF(side, side) / 2;
    const QTransform toDevice = painter.deviceTransform();
    painter.drawPixmap(toDevice.inverted().map(QPointF(toDevice.map(topLeft).toPoint())), picture);
}

} // namespace velmora::Symbols
