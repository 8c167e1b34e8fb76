#include "viewkit/Sheet.h"

#include "viewkit/WindowPlace.h"
#include "viewkit/WindowTheme.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace velmora {
namespace {

/// Room for a title bar, whose height is known only once the sheet has one.
constexpr int titleBarHeight = 36;

} // namespace

Sheet::Sheet(QWidget& window) : QDialog(&window) {
    setWindowFlags(
        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_DeleteOnClose);
    addActions(window.actions());
    WindowTheme::follow(*this);
    // It lives until the next turn; the second click of a double click may come before.
    connect(this, &QDialog::finished, this, [this] { setEnabled(false); });
}

Sheet& Sheet::present(QWidget& presenter, std::unique_ptr<QWidget> content) {
    QWidget& window = *presenter.window();
    auto* sheet = new Sheet(window);
    sheet->setWindowTitle(content->windowTitle());
    auto* layout = new QVBoxLayout(sheet);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    QWidget* shown = content.release();
    layout->addWidget(shown);
    // Made the default before it was in a dialog, a button is not yet known as such to this one.
    for (QPushButton* button : shown->findChildren<QPushButton*>()) {
        if (button->isDefault()) {
            button->setDefault(false);
            button->setDefault(true);
        }
    }
    sheet->adjustSize();

    sheet->move(window.geometry().center() - sheet->rect().center());
    sheet->open();
    shown->setFocus();
    return *sheet;
}

void Sheet::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const QScreen* screen = QGuiApplication::screenAt(geometry().center());
    if (!screen)
        screen = parentWidget()->screen();
    const QRect room = screen->availableGeometry().adjusted(0, 0, 0, -titleBarHeight);
    move(placeInside(room, QRect(pos(), size())));
}

void Sheet::dismiss(QWidget& content) {
    if (auto* sheet = qobject_cast<Sheet*>(content.window()))
        sheet->reject();
}

} // namespace velmora
