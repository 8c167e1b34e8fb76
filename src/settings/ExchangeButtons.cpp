#include "settings/ExchangeButtons.h"

#include "foundation/LocalizedString.h"
#include "settings/Exchange.h"
#include "viewkit/Alert.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace velmora {

ExchangeButtons::ExchangeButtons(const Exchange& exchange) {
    auto* importing = new QPushButton(localizedString("exchange_import"));
    auto* exporting = new QPushButton(localizedString("exchange_export"));
    connect(importing, &QPushButton::clicked, this, [this, &exchange] {
        chooseFile(
            QFileDialog::AcceptOpen, localizedString("edit_import"),
            [this, &exchange](const QString& path) {
                tell(localizedString("exchange_import_failed"), exchange.importFrom(path));
            });
    });
    connect(exporting, &QPushButton::clicked, this, [this, &exchange] {
        chooseFile(
            QFileDialog::AcceptSave, localizedString("exchange_title"),
            [this, &exchange](const QString& path) {
                tell(localizedString("exchange_export_failed"), exchange.exportTo(path));
            });
    });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::defaultSpacing);
    row->addWidget(importing);
    row->addWidget(exporting);
    row->addStretch();
    setFocusProxy(importing);
}

void ExchangeButtons::chooseFile(
    QFileDialog::AcceptMode mode, const QString& title,
    std::function<void(const QString& path)> use) {
    auto* dialog = new QFileDialog(window(), title, QDir::homePath(), u"JSON (*.json)"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(
        mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setDefaultSuffix(u"json"_s);
    if (mode == QFileDialog::AcceptSave)
        dialog->selectFile(u"velmora.json"_s);
    connect(dialog, &QFileDialog::fileSelected, this, std::move(use));
    dialog->open();
}

void ExchangeButtons::tell(const QString& failure, const QString& reason) {
    if (reason.isEmpty())
        return;
    // The reason may quote the file, which is to be read as plain text.
    const QString quoted = u"<span>%1</span>"_s.arg(reason.toHtmlEscaped());
    QMessageBox* message = makeMessage(failure, quoted, window());
    message->addButton(localizedString("button_close"), QMessageBox::RejectRole);
    message->open();
}

} // namespace velmora
