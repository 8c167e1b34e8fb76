#include "app/StatusItemIcon.h"

#include "viewkit/Theme.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int size = 18;

class StatusItemIcon : public QIconEngine {
public:
    explicit StatusItemIcon(const QImage& image) : image_(image) {}

    /// Into a tray's own cell: of the size that is meant, whatever the cell's.
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int side = std::min({size, rect.width(), rect.height()});
        QRect place(0, 0, side, side);
        place.moveCenter(rect.center());
        draw(*painter, place);
    }

    /// For a tray that draws it, in the size that it asks for.
    QPixmap pixmap(const QSize& wanted, QIcon::Mode, QIcon::State) override {
        QPixmap pixmap(wanted);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        draw(painter, pixmap.rect());
        return pixmap;
    }

    /// In pixels, for screens of one to three pixels a point.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {{size, size}, {2 * size, 2 * size}, {3 * size, 3 * size}};
    }

    QIconEngine* clone() const override { return new StatusItemIcon(image_); }

private:
    void draw(QPainter& painter, const QRect& rect) const {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (!image_.isNull()) {
            const QSize pixels = rect.size() * painter.device()->devicePixelRatio();
            painter.drawImage(
                rect, image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            return;
        }
        // What stands in for a title, which trays cannot show, on a ground of its own: the tray's
        // may be light or dark.
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x26, 0x26, 0x2b));
        painter.drawRoundedRect(rect, rect.width() / 4.5, rect.height() / 4.5);
        painter.setPen(Qt::white);
        painter.setFont(Theme::systemFont(rect.height() * 4 / 5));
        painter.drawText(rect, Qt::AlignCenter, u"▦"_s);
    }

    QImage image_;
};

} // namespace

QIcon statusItemIcon(const std::optional<QString>& path) {
    return QIcon(new StatusItemIcon(path ? QImage(*path) : QImage()));
}

} // namespace velmora
