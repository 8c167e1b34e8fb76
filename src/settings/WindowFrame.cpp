#include "settings/WindowFrame.h"

#include <algorithm>

namespace velmora::WindowFrame {
namespace {

/// Room for a title bar, whose height is known only once the window has one.
constexpr int titleBarHeight = 36;
/// How much of the title bar the pointer needs, of a bar that is at least this high.
constexpr QSize grip(60, 16);

} // namespace

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

QRect inReach(const QRect& frame, const QList<QRect>& screens, QSize minimum) {
    QRect all;
    for (const QRect& screen : screens)
        all |= screen;
    const QRect result(frame.topLeft(), frame.size().boundedTo(all.size()).expandedTo(minimum));
    const QRect titleBar(result.topLeft(), QSize(result.width(), grip.height()));
    const bool isInReach = std::ranges::any_of(screens, [&](const QRect& screen) {
        const QRect seen = titleBar & screen;
        return seen.width() >= grip.width() && seen.height() >= grip.height();
    });
    return isInReach ? result : onScreen(frame, screens, minimum);
}

QRect onScreen(const QRect& frame, const QList<QRect>& screens, QSize minimum) {
    if (screens.isEmpty())
        return frame;
    const auto covered = [&](const QRect& screen) {
        const QRect common = frame & screen;
        return qint64(common.width()) * common.height();
    };
    QRect screen =
        *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
            return covered(a) < covered(b);
        });
    screen.setHeight(screen.height() - titleBarHeight);
    QRect result(frame.topLeft(), frame.size().boundedTo(screen.size()).expandedTo(minimum));
    // The top left corner stays in sight where the screen is smaller than the minimum.
    result.moveLeft(
        qMax(screen.left(), qMin(result.left(), screen.left() + screen.width() - result.width())));
    result.moveTop(
        qMax(screen.top(), qMin(result.top(), screen.top() + screen.height() - result.height())));
    return result;
}

} // namespace velmora::WindowFrame
