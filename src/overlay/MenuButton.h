#pragma once

#include "viewkit/PlainButton.h"

#include <QImage>
#include <QPixmap>

namespace velmora {

/// The glyph of the bar's menu, "/icon/i-menu-wh.png" under the bundle's resource path. Read on
/// first use and kept; null for the life of the process when it cannot be read.
const QImage& cachedMenuIcon();

/// The button at the left end of the bar that opens the bar's menu.
class MenuButton : public PlainButton {
    Q_OBJECT
public:
    /// Shows `icon`; only the paddings remain when it is null.
    explicit MenuButton(QWidget* parent = nullptr, const QImage& icon = cachedMenuIcon());

    QSize sizeHint() const override;
    QString help() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage icon_;
    QPixmap scaled_; ///< for the last device pixel ratio painted at
};

} // namespace velmora
