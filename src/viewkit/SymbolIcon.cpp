#include "viewkit/SymbolIcon.h"

#include "viewkit/Symbols.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace velmora {
namespace {

class SymbolIconEngine : public QIconEngine {
public:
    explicit SymbolIconEngine(const QString& name) : name_(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        Symbols::paint(*painter, name_, rect, colour(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    /// `size` is in device pixels.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
        QPixmap box(size);
        box.setDevicePixelRatio(scale);
        box.fill(Qt::transparent);
        const double side = qMin(size.width(), size.height()) / scale;
        QPainter painter(&box);
        Symbols::paint(painter, name_, QRectF(0, 0, side, side), colour(mode));
        return box;
    }

    QIconEngine* clone() const override { return new SymbolIconEngine(name_); }

private:
    static QColor colour(QIcon::Mode mode) {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QGuiApplication::palette().color(group, QPalette::ButtonText);
    }

    QString name_;
};

} // namespace

QIcon symbolIcon(const QString& name) {
    return QIcon(new SymbolIconEngine(name));
}

} // namespace velmora
