#include "viewkit/Alert.h"

#include "viewkit/DestructiveButton.h"
#include "viewkit/WindowTheme.h"

#include <QGridLayout>
#include <QIcon>

namespace velmora {

QMessageBox* makeMessage(const QString& title, const QString& message, QWidget* window) {
    constexpr int leastWidth = 400;
    constexpr int margin = 20;
    constexpr QSize iconSize(48, 48);
    auto* box = new QMessageBox(window);
    WindowTheme::follow(*box);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(window ? title : QStringLiteral("Velmora"));
    box->setText(QStringLiteral("<b>%1</b>").arg(title.toHtmlEscaped()));
    box->setInformativeText(message);
    box->setIconPixmap(box->windowIcon().pixmap(iconSize, box->devicePixelRatio()));
    auto& grid = static_cast<QGridLayout&>(*box->layout());
    grid.setContentsMargins(margin, margin, margin, margin);
    grid.addItem(new QSpacerItem(leastWidth - 2 * margin, 0), grid.rowCount(), 0, 1, -1);
    return box;
}

void presentAlert(QWidget& presenter, const AlertTexts& texts, std::function<void()> onConfirm) {
    QWidget& window = *presenter.window();
    QMessageBox* alert = makeMessage(texts.title, texts.message, &window);
    alert->addActions(window.actions());
    alert->setDefaultButton(alert->addButton(texts.cancel, QMessageBox::RejectRole));
    alert->addButton(new DestructiveButton(texts.destructive), QMessageBox::AcceptRole);
    QObject::connect(alert, &QDialog::accepted, &presenter, std::move(onConfirm));
    alert->open();
}

} // namespace velmora
