#include "settings/SheetParts.h"

#include "foundation/LocalizedString.h"
#include "settings/Headline.h"
#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace velmora {

QWidget* sheetHeader(const QString& title, QWidget& content) {
    auto* header = new QWidget;
    auto* close = new QPushButton(localizedString("button_close"));
    close->setAutoDefault(false); // Return belongs to what is chosen
    QObject::connect(close, &QPushButton::clicked, header, [&content] { Sheet::dismiss(content); });
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(
        Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding);
    row->addWidget(headline(title));
    row->addStretch();
    row->addWidget(close);
    return header;
}

QWidget* divider() {
    auto* line = new QWidget;
    line->setFixedHeight(1);
    line->setBackgroundRole(QPalette::Mid);
    line->setAutoFillBackground(true);
    return line;
}

} // namespace velmora
