#include "viewkit/FormParts.h"

#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>

namespace velmora {

QLabel* headline(const QString& text) {
    constexpr int fontSize = 15;
    constexpr int lineHeight = 18; // the fonts of some scripts ask for more than their glyphs take
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::systemFont(fontSize, QFont::DemiBold));
    label->setFixedHeight(lineHeight);
    return label;
}

QWidget* sheetHeader(const QString& title, const QString& close, QWidget& content) {
    auto* header = new QWidget;
    auto* button = new QPushButton(close);
    button->setAutoDefault(false); // Return belongs to what is chosen
    QObject::connect(
        button, &QPushButton::clicked, header, [&content] { Sheet::dismiss(content); });
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(
        Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding);
    row->addWidget(headline(title));
    row->addStretch();
    row->addWidget(button);
    return header;
}

QScrollArea* scrollArea(QWidget* content, const QString& name) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    area->setWidget(content);
    content->setAutoFillBackground(false);
    area->setAccessibleName(name);
    return area;
}

QWidget* divider() {
    auto* line = new QWidget;
    line->setFixedHeight(1);
    line->setBackgroundRole(QPalette::Mid);
    line->setAutoFillBackground(true);
    return line;
}

void paintEmptyHint(QAbstractItemView& list, const QString& text) {
    if (list.model()->rowCount() > 0)
        return;
    constexpr int margin = Theme::defaultPadding;
    QPainter painter(list.viewport());
    painter.setPen(list.palette().color(QPalette::PlaceholderText));
    painter.drawText(
        list.viewport()->rect().adjusted(margin, margin, -margin, -margin),
        Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace velmora
