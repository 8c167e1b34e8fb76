#include "settings/WindowFrame.h"

#include <algorithm>

namespace velmora::WindowFrame {

QByteArray encoded(const QRect& frame) {
    QByteArrayList numbers;
    for (const int number : {frame.x(), frame.y(), frame.width(), frame.height()})
        numbers.append(QByteArray::number(number));
    return numbers.join(' ');
}

std::optional<QRect> decoded(const QByteArray& data) {
    const QByteArrayList numbers = data.split(' ');
    if (numbers.size() != 4)
        return std::nullopt;
    int values[4];
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        values[i] = numbers[i].toInt(&isNumber);
        // Larger numbers are no place or size on a desktop, and sums of them would overflow.
        if (!isNumber || std::abs(qint64(values[i])) > 1'000'000)
            return std::nullopt;
    }
    if (values[2] <= 0 || values[3] <= 0)
        return std::nullopt;
    return QRect(values[0], values[1], values[2], values[3]);
}

QRect onScreen(const QRect& frame, const QList<QRect>& screens, QSize minimum) {
    if (screens.isEmpty())
        return frame;
    const auto covered = [&](const QRect& screen) {
        const QRect common = frame & screen;
        return qint64(common.width()) * common.height();
    };
    const QRect screen =
        *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
            return covered(a) < covered(b);
        });
    QRect result(frame.topLeft(), frame.size().boundedTo(screen.size()).expandedTo(minimum));
    // The top left corner stays in sight where the screen is smaller than the minimum.
    result.moveLeft(
        qMax(screen.left(), qMin(result.left(), screen.left() + screen.width() - result.width())));
    result.moveTop(
        qMax(screen.top(), qMin(result.top(), screen.top() + screen.height() - result.height())));
    return result;
}

} // namespace velmora::WindowFrame
