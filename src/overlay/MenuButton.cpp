#include "overlay/MenuButton.h"

#include "foundation/ActionMessages.h"
#include "foundation/Bundle.h"
#include "foundation/LocalizedString.h"
#include "model/Preferences.h"
#include "viewkit/PngFile.h"
#include "viewkit/PopupMenu.h"

#include <QCursor>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int iconSide = 16;
constexpr int horizontalPadding = 12;
constexpr int leadingPadding = 6;
/// The menu's first item opens this far below the pointer.
constexpr int menuDistance = 5;

std::function<void()> sending(const QString& message) {
    return [message] { ActionMessages::shared().send(message); };
}

/// Opens the bar's menu at the mouse pointer. Returns at once; the menu ends itself.
void showMenu(MenuButton& button) {
    auto* menu = new PopupMenu(&button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(localizedString("menu_help"));
    // After a tab stands what looks like a key equivalent but is none: the hot key is matched by
    // position, in an open menu as well.
    const QString hotKey = u'\t' + Preferences::shared().hotKey().name();
    menu->addItem(localizedString("menu_toggle") + hotKey, {}, sending(u"toggleOverlayMenu"_s));
    menu->addSeparator();
    menu->addItem(
        localizedString("menu_settings"), Qt::CTRL | Qt::Key_Comma, sending(u"showSettings"_s));
    menu->addSeparator();
    menu->addItem(localizedString("menu_quit"), Qt::CTRL | Qt::Key_Q, sending(u"quitApp"_s));
    menu->popUp(QCursor::pos() + QPoint(0, menuDistance));
}

} // namespace

const QImage& cachedMenuIcon() {
    static const QImage icon = [] {
        const auto resourcePath = Bundle::resourcePath();
        return resourcePath ? readPng(*resourcePath + u"/icon/i-menu-wh.png"_s) : QImage();
    }();
    return icon;
}

MenuButton::MenuButton(QWidget* parent, const QImage& icon) : PlainButton(parent), icon_(icon) {
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(help());
    connect(this, &MenuButton::clicked, this, [this] { showMenu(*this); });
}

QSize MenuButton::sizeHint() const {
    const int icon = icon_.isNull() ? 0 : iconSide;
    return {leadingPadding + horizontalPadding + icon + horizontalPadding, iconSide};
}

QString MenuButton::help() const {
    return localizedString("menu_help");
}

void MenuButton::paintEvent(QPaintEvent*) {
    if (icon_.isNull())
        return;
    const double ratio = devicePixelRatio();
    if (scaled_.isNull() || scaled_.devicePixelRatio() != ratio) {
        const QSize pixels = (QSizeF(iconSide, iconSide) * ratio).toSize();
        scaled_ =
            QPixmap::fromImage(icon_.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        scaled_.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    // A held plain button is dimmed.
    if (isDown())
        painter.setOpacity(0.7);
    const QSizeF size = scaled_.deviceIndependentSize();
    const QRectF frame(
        leadingPadding + horizontalPadding, (height() - iconSide) / 2.0, iconSide, iconSide);
    painter.drawPixmap(frame.center() - QPointF(size.width(), size.height()) / 2, scaled_);
}

} // namespace velmora
