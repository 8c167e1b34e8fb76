#include "platform/x11/screens/X11Screens.h"

#include "platform/x11/base/WindowQueries.h"
#include "platform/x11/base/X11Connection.h"
#include "platform/x11/screens/CutOut.h"
#include "platform/x11/screens/PrimaryOutput.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velmora {

X11Screens::X11Screens(X11Connection& connection, std::function<QByteArray()> readCompatible)
    : connection_(connection), readCompatible_(std::move(readCompatible)) {}

std::optional<Screen> X11Screens::mainScreen() const {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    // Qt keeps a placeholder of no size while no output is connected.
    if (!screen || screen->size().isEmpty())
        return {};
    const double ratio = screen->devicePixelRatio();
    const auto output = readPrimaryOutput(connection_);

    QSizeF size = screen->size();
    QSize pixels = (size * ratio).toSize();
    if (output) {
        // Qt rounds to whole points; with a fractional ratio the output's own size is exact.
        const QSizeF exact = QSizeF(output->size) / ratio;
        if (std::abs(exact.width() - size.width()) < 1 &&
            std::abs(exact.height() - size.height()) < 1) {
            size = exact;
            pixels = output->size;
        }
    }

    std::optional<QMargins> insets;
    if (output)
        insets = statedInsets(
            readOutputCardinals(connection_, output->output, "safe_area_insets"), pixels);
    if (!insets)
        insets = statedInsets(
            readProperty(connection_, connection_.root(), "_SAFE_AREA_INSETS", XCB_ATOM_CARDINAL),
            pixels);
    if (!insets && output && output->upright)
        insets = QMargins(0, knownCutoutHeight(readCompatible_(), pixels), 0, 0);
    return Screen{
        .frame = {{0, 0}, size}, .safeAreaInsets = QMarginsF(insets.value_or(QMargins())) / ratio};
}

QByteArray X11Screens::deviceTreeNames() {
    QFile file(u"/proc/device-tree/compatible"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace velmora
