#include "viewkit/SegmentedPicker.h"

#include "viewkit/Rounded.h"
#include "viewkit/WindowTheme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>

namespace velmora {
namespace {

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
        const auto& colors = WindowTheme::colors();
        constexpr double radius = Rounded::controlRadius;
        const QRectF bounds = rect();
        if (isChecked())
            Rounded::fill(painter, bounds.adjusted(2, 2, -2, -2), radius - 2, colors.accent);
        if (hasFocus()) {
            Rounded::fill(
                painter, bounds.adjusted(3, 3, -3, -3), radius - 2.5, Qt::transparent, Qt::white);
            Rounded::drawFocusRing(painter, bounds, radius);
        }
        painter.setPen(isChecked() ? QColor(Qt::white) : colors.text);
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
    const auto& colors = WindowTheme::colors();
    Rounded::fill(painter, rect(), Rounded::controlRadius, colors.button, colors.border);
}

} // namespace velmora
