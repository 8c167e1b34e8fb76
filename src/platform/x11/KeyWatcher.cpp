#include "platform/x11/KeyWatcher.h"

#include "foundation/Bundle.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace velmora {

KeyWatcher::KeyWatcher(X11Connection& connection)
    : connection_(connection), window_(connection.makeHiddenWindow()) {
    xcb_flush(connection_);
    const auto folder = Bundle::helperPath();
    if (!folder)
        return;
    // Detached, it is in a session of its own: what ends our terminal or process group spares it.
    QProcess process;
    process.setProgram(*folder + u"/velmora-key-watcher"_s);
    process.setArguments({QString::number(window_)});
    process.setWorkingDirectory(u"/"_s);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

KeyWatcher::~KeyWatcher() {
    xcb_destroy_window(connection_, window_);
    xcb_flush(connection_);
}

} // namespace velmora
