#pragma once

#include <QImage>
#include <QString>

namespace velmora {

/// The picture in a PNG file; null when it cannot be read. Qt's own reader first loads all its
/// picture plugins, which takes longer than the rest of the bar's drawing.
QImage readPng(const QString& file);

} // namespace velmora
