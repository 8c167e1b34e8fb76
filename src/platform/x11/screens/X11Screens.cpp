#include "platform/x11/screens/X11Screens.h"

#include "platform/x11/base/WindowQueries.h"
#include "platform/x11/base/X11Connection.h"
#include "platform/x11/screens/CutOut.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// One change comes as several events.
constexpr auto kOneChange = 20ms;
/// Longer than what lies between the changes of an output that flaps.
constexpr auto kCalm = 250ms;

} // namespace

X11Screens::X11Screens(X11Connection& connection, std::function<QByteArray()> readCompatible)
    : connection_(connection), readCompatible_(std::move(readCompatible)) {
    settling_.setSingleShot(true);
    settling_.setTimerType(Qt::PreciseTimer);
    settling_.callOnTimeout(this, [this] {
        sinceTold_.start();
        Q_EMIT changed();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &X11Screens::noteChange);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &X11Screens::noteChange);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](const QScreen* screen) {
        follow(screen);
        noteChange();
    });
    for (const QScreen* const screen : QGuiApplication::screens())
        follow(screen);
}

void X11Screens::follow(const QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &X11Screens::noteChange);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &X11Screens::noteChange);
}

void X11Screens::noteChange() {
    const bool calm = !sinceTold_.isValid() || sinceTold_.elapsed() > kCalm.count();
    if (!calm)
        settling_.start(kCalm);
    else if (!settling_.isActive())
        settling_.start(kOneChange);
}

std::optional<X11Screens::Primary> X11Screens::primary() const {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    // Qt keeps a placeholder of no size while no output is connected.
    if (!screen || screen->size().isEmpty())
        return {};
    const double ratio = screen->devicePixelRatio();
    const auto output = readPrimaryOutput(connection_);
    QSize pixels = (QSizeF(screen->size()) * ratio).toSize();
    // Qt rounds to whole points; with a fractional ratio the output's own size is exact.
    if (output && std::abs(output->size.width() - pixels.width()) < ratio &&
        std::abs(output->size.height() - pixels.height()) < ratio)
        pixels = output->size;
    // Qt leaves the place of a screen in pixels.
    return Primary{{screen->geometry().topLeft(), pixels}, ratio, output};
}

QList<QRect> X11Screens::all() {
    QList<QRect> screens;
    for (const QScreen* const screen : QGuiApplication::screens())
        screens.emplace_back(
            screen->geometry().topLeft(),
            (QSizeF(screen->size()) * screen->devicePixelRatio()).toSize());
    return screens;
}

std::optional<Screen> X11Screens::mainScreen() const {
    const auto screen = primary();
    if (!screen)
        return {};
    const QSize size = screen->pixels.size();
    const auto& output = screen->output;
    std::optional<QMargins> insets;
    if (output)
        insets = statedInsets(
            readOutputCardinals(connection_, output->output, "safe_area_insets"), size);
    if (!insets)
        insets = statedInsets(
            readProperty(connection_, connection_.root(), "_SAFE_AREA_INSETS", XCB_ATOM_CARDINAL),
            size);
    if (!insets && output && output->upright)
        insets = QMargins(0, knownCutoutHeight(readCompatible_(), size), 0, 0);
    return Screen{
        .frame = {{0, 0}, QSizeF(size) / screen->ratio},
        .safeAreaInsets = QMarginsF(insets.value_or(QMargins())) / screen->ratio};
}

QByteArray X11Screens::deviceTreeNames() {
    QFile file(u"/proc/device-tree/compatible"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace velmora
