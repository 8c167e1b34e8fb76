#include "settings/AppIcons.h"

#include "settings/AppInfo.h"

#include <QPixmapCache>

namespace velmora {
namespace {

QString key(const AppInfo& app, double devicePixelRatio) {
    return app.path + u'@' + QString::number(devicePixelRatio);
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
    pixmaps_.insert(
        key(app, devicePixelRatio),
        new QPixmap(app.getIcon().pixmap(QSize(side, side), devicePixelRatio)));
}

} // namespace velmora
