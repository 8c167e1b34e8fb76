#include "settings/AppIcons.h"

#include "settings/AppInfo.h"

#include <QImage>
#include <QPixmapCache>
#include <algorithm>

namespace velmora {
namespace {

QString key(const AppInfo& app, double devicePixelRatio) {
    return app.path + u'@' + QString::number(devicePixelRatio);
}

/// Whether nothing can be seen: a drawing that the picture reader does not understand.
bool isBlank(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_Alpha8);
    for (int y = 0; y < image.height(); ++y) {
        const uchar* line = image.constScanLine(y);
        if (std::any_of(line, line + image.width(), [](uchar alpha) { return alpha != 0; }))
            return false;
    }
    return true;
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
