#include "settings/AppIcons.h"

#include "settings/AppInfo.h"

#include <QImage>
#include <QPixmapCache>
#include <numeric>

namespace velmora {
namespace {

QString key(const AppInfo& app, double devicePixelRatio) {
    return app.path + u'@' + QString::number(devicePixelRatio);
}

/// Whether next to nothing can be seen: a drawing that the picture reader does not understand.
bool isBlank(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_Alpha8);
    qint64 visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        const uchar* line = image.constScanLine(y);
        visible += std::accumulate(line, line + image.width(), qint64(0));
    }
    constexpr int least = 1; // percent of full coverage; a thin outline has ten
    return visible * 100 <= qint64(image.width()) * image.height() * 255 * least;
}

} // namespace

AppIcons::~AppIcons() {
    QPixmapCache::clear();
}

std::optional<QPixmap> AppIcons::find(const AppInfo& app, double devicePixelRatio) const {
    const QPixmap* pixmap = pixmaps_.object(key(app, devicePixelRatio));
    return pixmap ? std::optional(*pixmap) : std::nullopt;
}

void AppIcons::load(const AppInfo& app, double devicePixelRatio) {
    QPixmap pixmap = app.getIcon().pixmap(QSize(side, side), devicePixelRatio);
    if (isBlank(pixmap))
        pixmap = {};
    pixmaps_.insert(key(app, devicePixelRatio), new QPixmap(std::move(pixmap)));
}

} // namespace velmora
