#include "overlay/StandardLayout.h"

#include "overlay/MenuButton.h"
#include "overlay/ShortcutButtonView.h"

#include <algorithm>
#include <limits>

namespace velmora {

int titleWidthLimit(QList<int> widths, int excess) {
    if (excess <= 0)
        return std::numeric_limits<int>::max();
    std::sort(widths.begin(), widths.end(), std::greater());
    // The widest titles are cut to the width of the next one until that saves enough.
    qint64 saved = 0;
    for (qsizetype count = 1; count <= widths.size(); ++count) {
        const int width = widths[count - 1];
        const int next = count < widths.size() ? widths[count] : 0;
        const qint64 step = qint64(width - next) * count;
        if (saved + step >= excess)
            return width - static_cast<int>((excess - saved + count - 1) / count);
        saved += step;
    }
    return 0;
}

StandardLayout::StandardLayout(ExecuteAction action, QWidget* parent)
    : BarLayout(std::move(action), parent),
      menuButton_(new MenuButton(this)),
      left_(new ButtonRow(this)),
      right_(new ButtonRow(this)) {}

void StandardLayout::setShortcuts(const QList<ShortcutButton>& shortcuts) {
    left_->setRootView({false, group(shortcuts, ButtonAlignment::left), execute, {}});
    right_->setRootView({false, group(shortcuts, ButtonAlignment::right), execute, {}});
    layOut();
}

void StandardLayout::resizeEvent(QResizeEvent*) {
    layOut();
}

void StandardLayout::layOut() {
    const QSize menu = menuButton_->sizeHint();
    const int leftX = menu.width() + spacing;
    // Spacing on both sides of a gap that is itself as wide.
    const int taken = leftX + 3 * spacing + trailingPadding;
    QList<int> titles;
    for (const ButtonRow* row : {left_, right_}) {
        for (const ShortcutButtonView* button : row->buttons())
            titles.append(button->titleWidth());
    }
    const int excess = taken + left_->naturalWidth() + right_->naturalWidth() - width();
    const int limit = titleWidthLimit(titles, excess);
    left_->setTitleWidthLimit(limit);
    right_->setTitleWidthLimit(limit);
    menuButton_->setGeometry({QPoint(0, (height() - menu.height()) / 2), menu});
    left_->setGeometry(leftX, 0, left_->width(), height());
    const int rightX =
        std::max(width() - trailingPadding - right_->width(), leftX + left_->width() + 3 * spacing);
    right_->setGeometry(rightX, 0, right_->width(), height());
}

} // namespace velmora
