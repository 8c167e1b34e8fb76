#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QColor;
class QPainter;

namespace velmora {

/// A list's row that shows a picture at the leading edge, a title over a detail, and possibly marks
/// at the trailing edge. Leading is on the right where `direction` says so.
class TwoLineRow {
public:
    /// `content` is the row without its padding; the texts begin `spacing` points behind a picture
    /// in a frame of `pictureSide` points.
    TwoLineRow(const QRect& content, Qt::LayoutDirection direction, int pictureSide, int spacing);

    /// The height in points of a row whose content has such a picture.
    static int contentHeight(int pictureSide);
    static QFont titleFont();
    static QFont detailFont();

    /// The place of a picture of `size` in the middle of its frame.
    QRect picture(const QSize& size) const;
    /// Takes the place of a mark of `size` from the trailing end of the texts' room, and `spacing`
    /// points between them.
    QRect takeMark(const QSize& size, int spacing);
    /// Draws both texts in the room that is left, each elided, whatever direction it reads.
    void paintTexts(
        QPainter& painter, const QString& title, const QColor& titleColour, const QString& detail,
        const QColor& detailColour) const;

private:
    QRect placed(const QRect& leftToRight) const;

    QRect content_;
    Qt::LayoutDirection direction_;
    int pictureSide_;
    QRect texts_; ///< as in a row that reads from the left
};

/// `text` fit to be drawn on one line: line breaks become spaces, and a very long text is cut.
QString singleLine(const QString& text);

} // namespace velmora
