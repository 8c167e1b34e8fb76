#include "viewkit/PngFile.h"

#include <QFile>
#include <png.h>

namespace velmora {

QImage readPng(const QString& file) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, QFile::encodeName(file).constData()))
        return {};
    png.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    QImage image(static_cast<int>(png.width), static_cast<int>(png.height), QImage::Format_ARGB32);
    if (image.isNull()) {
        png_image_free(&png);
        return {};
    }
    // A failure frees what was read.
    const bool read = png_image_finish_read(
        &png, nullptr, image.bits(), static_cast<png_int_32>(image.bytesPerLine()), nullptr);
    return read ? image : QImage();
}

} // namespace velmora
