#include "settings/WindowFrame.h"

#include "viewkit/WindowPlace.h"

#include <algorithm>

namespace velmora {

QByteArray WindowFrame::encoded() const {
    QByteArrayList numbers;
    for (const int number :
         {place.x(), place.y(), content.width(), content.height(), decoration.width(),
          decoration.height()})
        numbers.append(QByteArray::number(number));
    return numbers.join(' ');
}

std::optional<WindowFrame> WindowFrame::decoded(const QByteArray& data) {
    QList<int> values;
    for (const QByteArray& number : data.split(' ')) {
        bool isNumber = false;
        values.append(number.toInt(&isNumber));
        // Larger numbers are no place or size on a desktop, and sums of them would overflow.
        if (!isNumber || std::abs(qint64(values.last())) > 1'000'000)
            return std::nullopt;
    }
    if (values.size() != 4 && values.size() != 6)
        return std::nullopt;
    WindowFrame frame{.place = {values[0], values[1]}, .content = {values[2], values[3]}};
    if (values.size() == 6)
        frame.decoration = {values[4], values[5]};
    if (frame.content.isEmpty() || !frame.decoration.isValid())
        return std::nullopt;
    return frame;
}

QRect WindowFrame::homeArea(const QList<QRect>& areas) const {
    const auto covered = [this](const QRect& area) {
        const QRect common = outer() & area;
        return qint64(common.width()) * common.height();
    };
    return *std::ranges::max_element(areas, {}, covered);
}

WindowFrame WindowFrame::fitted(const QRect& area, QSize minimum) const {
    WindowFrame result = *this;
    result.content = content.boundedTo(area.size() - decoration).expandedTo(minimum);
    result.place = placeInside(area, result.outer());
    return result;
}

} // namespace velmora
