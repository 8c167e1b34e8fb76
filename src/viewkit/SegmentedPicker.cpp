#include "viewkit/SegmentedPicker.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>

namespace velmora {
namespace {

constexpr double cornerRadius = 6;
constexpr int horizontalPadding = 10;
constexpr int segmentHeight = 26;

/// One segment. A radio button for the keyboard and assistive programs, with the look of its own.
class Segment : public QRadioButton {
public:
    explicit Segment(const QString& title) : title_(title) {
        setAccessibleName(title);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(title_) + 2 * horizontalPadding, segmentHeight};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette().highlight());
            painter.drawRoundedRect(
                QRectF(rect()).adjusted(2, 2, -2, -2), cornerRadius - 2, cornerRadius - 2);
        }
        if (hasFocus()) {
            painter.setPen(QPen(palette().highlight().color(), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(
                QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius - 1, cornerRadius - 1);
            painter.setPen(QPen(palette().highlightedText().color(), 1));
            painter.drawRoundedRect(
                QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), cornerRadius - 3, cornerRadius - 3);
        }
        painter.setPen(
            palette().color(isChecked() ? QPalette::HighlightedText : QPalette::ButtonText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, title_);
    }

private:
    const QString title_;
};

} // namespace

SegmentedPicker::SegmentedPicker(const QStringList& titles) : segments_(new QButtonGroup(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const QString& title : titles) {
        auto* segment = new Segment(title);
        segments_->addButton(segment, int(segments_->buttons().size()));
        row->addWidget(segment, 1);
    }
    setCurrentIndex(0);
}

int SegmentedPicker::currentIndex() const {
    return segments_->checkedId();
}

void SegmentedPicker::setCurrentIndex(int index) {
    segments_->button(index)->setChecked(true);
}

void SegmentedPicker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().button());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

} // namespace velmora
