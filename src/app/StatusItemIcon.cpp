#include "app/StatusItemIcon.h"

#include "viewkit/Theme.h"

#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int size = 18;
/// Pixels a point: trays on dense screens find one that fits.
constexpr int ratios[] = {1, 2, 3};

/// What stands in for a title, which trays cannot show, on a ground of its own: the tray's may be
/// light or dark.
QImage titleImage(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x26, 0x26, 0x2b));
    painter.drawRoundedRect(image.rect(), side / 4.5, side / 4.5);
    painter.setPen(Qt::white);
    painter.setFont(Theme::systemFont(side));
    painter.drawText(image.rect(), Qt::AlignCenter, u"▦"_s);
    return image;
}

} // namespace

QIcon statusItemIcon(const std::optional<QString>& path) {
    const QImage drawn = path ? QImage(*path) : QImage();
    QIcon icon;
    for (const int ratio : ratios) {
        const int side = size * ratio;
        icon.addPixmap(QPixmap::fromImage(
            drawn.isNull()
                ? titleImage(side)
                : drawn.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    }
    return icon;
}

} // namespace velmora
