#include "app/TrustNotice.h"

#include "app/MainMenu.h"
#include "foundation/ActionMessages.h"
#include "foundation/LocalizedString.h"
#include "platform/WindowActivation.h"
#include "viewkit/WindowTheme.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int textWidth = 400;
constexpr int padding = 20;

} // namespace

void showTrustNotice(WindowActivation& activation, const QStringList& missingExtensions) {
    auto* notice = new QDialog;
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->setWindowTitle(u"Velmora"_s);
    WindowTheme::follow(*notice);

    auto* title = new QLabel(localizedString("trust_title"));
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    QFont titleFont = notice->font();
    titleFont.setPixelSize(WindowTheme::fontSize + 2);
    titleFont.setWeight(QFont::DemiBold);
    title->setFont(titleFont);

    auto* message = new QLabel(
        missingExtensions.isEmpty()
            ? localizedString("trust_message")
            : localizedString("trust_message_extensions").arg(missingExtensions.join(u", "_s)));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setFixedWidth(textWidth);

    auto* close = new QPushButton(localizedString("button_close"));
    close->setDefault(true);
    QObject::connect(close, &QPushButton::clicked, notice, &QDialog::close);

    // It has no menu bar, but the application's key equivalents act in every window.
    const MenuModel menu = mainMenu().constFirst();
    for (const MenuEntry& entry : menu.entries) {
        if (entry.keyEquivalent.isEmpty())
            continue;
        QObject::connect(
            new QShortcut(entry.keyEquivalent, notice), &QShortcut::activated,
            [message = entry.actionMessage] { ActionMessages::shared().send(message); });
    }

    auto* layout = new QVBoxLayout(notice);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->setSpacing(padding / 2);
    layout->addWidget(title);
    layout->addWidget(message);
    layout->addWidget(close, 0, Qt::AlignTrailing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    activation.makeKeyAndOrderFront(*notice);
}

} // namespace velmora
