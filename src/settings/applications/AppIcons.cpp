#include "settings/applications/AppIcons.h"

#include "foundation/MainQueue.h"
#include "foundation/RegularFile.h"
#include "settings/applications/AppInfo.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QPixmapCache>
#include <QPointer>
#include <QThreadPool>
#include <numeric>

namespace velmora {
namespace {

/// Bytes of a picture's file, and pixels of its side: what an icon never reaches.
constexpr qint64 sizeLimit = 8 * 1024 * 1024;
constexpr int largestSide = 1024;

QString key(const AppInfo& app, double devicePixelRatio) {
    return app.path + u'@' + QString::number(devicePixelRatio);
}

/// Whether next to nothing can be seen: a drawing that the picture reader does not understand.
bool isBlank(const QImage& picture) {
    const QImage image = picture.convertToFormat(QImage::Format_Alpha8);
    qint64 visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        const uchar* line = image.constScanLine(y);
        visible += std::accumulate(line, line + image.width(), qint64(0));
    }
    constexpr int least = 1; // percent of full coverage; a thin outline has ten
    return visible * 100 <= qint64(image.width()) * image.height() * 255 * least;
}

/// The picture in the file at `path`, no larger than it has to be.
QImage pictureInFile(const QString& path, double devicePixelRatio) {
    auto bytes = RegularFile::bytes(path, sizeLimit);
    if (!bytes)
        return {};
    QBuffer buffer(&*bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    const int pixels = qRound(AppIcons::side * devicePixelRatio);
    const QSize fitting = size.scaled(pixels, pixels, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const bool isDrawing = reader.format().startsWith("svg");
    if (isDrawing || fitting.width() < size.width())
        reader.setScaledSize(fitting);
    QImage image = reader.read();
    // A small one is not blown up beyond one pixel a point.
    image.setDevicePixelRatio(
        qMax(1.0, devicePixelRatio * qMax(image.width(), image.height()) / pixels));
    return image;
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
    const QString name = key(app, devicePixelRatio);
    pixmaps_.insert(name, new QPixmap);
    const QIcon themed = app.getIcon();
    if (themed.isNull() && !QDir::isAbsolutePath(app.iconName))
        return;
    waiting_.append({name, themed, app.iconName, devicePixelRatio});
    readNext();
}

QImage AppIcons::picture(const Request& request) {
    const double ratio = request.devicePixelRatio;
    const QImage image = request.themed.isNull()
                             ? pictureInFile(request.file, ratio)
                             : request.themed.pixmap(QSize(side, side), ratio).toImage();
    return isBlank(image) ? QImage() : image;
}

void AppIcons::readNext() {
    if (isReading_ || waiting_.isEmpty())
        return;
    isReading_ = true;
    QThreadPool::globalInstance()->start([self = QPointer(this), request = waiting_.takeLast()] {
        MainQueue::submit([self, key = request.key, image = picture(request)] {
            if (!self)
                return;
            self->pixmaps_.insert(key, new QPixmap(QPixmap::fromImage(image)));
            self->isReading_ = false;
            Q_EMIT self->loaded();
            self->readNext();
        });
    });
}

} // namespace velmora
