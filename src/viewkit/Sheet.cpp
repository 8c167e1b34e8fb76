#include "viewkit/Sheet.h"

#include "viewkit/WindowTheme.h"

#include <QScreen>
#include <QVBoxLayout>

namespace velmora {

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
    sheet->adjustSize();

    QRect frame = sheet->rect();
    frame.moveCenter(window.geometry().center());
    const QRect available = window.screen()->availableGeometry();
    // On a screen that is too small the top left corner stays in sight.
    frame.moveLeft(qMax(available.left(), qMin(frame.left(), available.right() - frame.width())));
    frame.moveTop(qMax(available.top(), qMin(frame.top(), available.bottom() - frame.height())));
    sheet->move(frame.topLeft());
    sheet->open();
    shown->setFocus();
    return *sheet;
}

void Sheet::dismiss(QWidget& content) {
    if (auto* sheet = qobject_cast<Sheet*>(content.window()))
        sheet->reject();
}

} // namespace velmora
