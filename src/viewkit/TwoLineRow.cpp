#include "viewkit/TwoLineRow.h"

#include "viewkit/Theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace velmora {
namespace {

constexpr int lineSpacing = 2;

int textHeight() {
    return QFontMetrics(TwoLineRow::titleFont()).height() + lineSpacing +
           QFontMetrics(TwoLineRow::detailFont()).height();
}

} // namespace

TwoLineRow::TwoLineRow(
    const QRect& content, Qt::LayoutDirection direction, int pictureSide, int spacing)
    : content_(content),
      direction_(direction),
      pictureSide_(pictureSide),
      texts_(content.adjusted(pictureSide + spacing, 0, 0, 0)) {}

int TwoLineRow::contentHeight(int pictureSide) {
    return qMax(pictureSide, textHeight());
}

QFont TwoLineRow::titleFont() {
    return Theme::systemFont(13, QFont::Medium);
}

QFont TwoLineRow::detailFont() {
    return Theme::systemFont(11);
}

QRect TwoLineRow::placed(const QRect& leftToRight) const {
    return QStyle::visualRect(direction_, content_, leftToRight);
}

QRect TwoLineRow::picture(const QSize& size) const {
    QRect picture({}, size);
    picture.moveCenter(QRect(content_.topLeft(), QSize(pictureSide_, content_.height())).center());
    return placed(picture);
}

QRect TwoLineRow::takeMark(const QSize& size, int spacing) {
    QRect mark({}, size);
    mark.moveCenter(texts_.center());
    mark.moveRight(texts_.right());
    texts_.setRight(mark.left() - spacing - 1);
    return placed(mark);
}

void TwoLineRow::paintTexts(
    QPainter& painter, const QString& title, const QColor& titleColour, const QString& detail,
    const QColor& detailColour) const {
    const auto paint = [&](const QRect& line, const QFont& font, const QString& text) {
        const QString elided =
            QFontMetrics(font).elidedText(singleLine(text), Qt::ElideRight, line.width());
        painter.setFont(font);
        painter.drawText(
            placed(line),
            int(QStyle::visualAlignment(direction_, Qt::AlignLeft)) | Qt::AlignAbsolute |
                Qt::AlignVCenter | Qt::TextSingleLine,
            elided);
    };
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    QRect line = texts_;
    line.setTop(texts_.center().y() - textHeight() / 2 + 1);
    line.setHeight(QFontMetrics(titleFont()).height());
    painter.setPen(titleColour);
    paint(line, titleFont(), title);
    line.translate(0, line.height() + lineSpacing);
    line.setHeight(QFontMetrics(detailFont()).height());
    painter.setPen(detailColour);
    paint(line, detailFont(), detail);
}

QString singleLine(const QString& text) {
    constexpr qsizetype enough = 500; // characters, wider than any window
    QString line = text.left(enough);
    for (QChar& character : line) {
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = u' ';
    }
    return line;
}

} // namespace velmora
