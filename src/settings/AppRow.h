#pragma once

#include "settings/AppInfo.h"

#include <QPixmap>

class QPainter;
class QPalette;
class QRect;

namespace velmora {

/// One application in the chooser's list.
struct AppRow {
    const AppInfo& app;
    bool isSelected;
    QPixmap icon;           ///< null draws the symbol of an application
    bool isHovered = false; ///< the pointer is over it
    bool isCurrent = false; ///< Return would pick it

    /// Height in points, alike for all rows.
    static int height();

    void paint(QPainter& painter, const QRect& rect, const QPalette& palette) const;
};

} // namespace velmora
