#include "settings/EmptyHint.h"

#include "viewkit/Theme.h"

#include <QAbstractItemView>
#include <QPainter>

namespace velmora {

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
