#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

namespace velmora {

/// What the module over GIO does for the program: functions only, so that the two share no state.
struct GioModule {
    const char* version; ///< of the program that the module belongs to

    /// Where the desktop entry with that id ("name.desktop") is stored. Empty when there is none,
    /// it is hidden or its program is missing. Changes made while the program runs are noticed.
    QString (*entryLocation)(const QByteArray& id);
    /// The same of the entry that handles a MIME type by default.
    QString (*defaultHandlerLocation)(const QByteArray& type);

    /// Starts or activates the application whose desktop entry is the file at `location`. This and
    /// the next wait for the session bus and the file system: call them beside the main thread.
    /// What they start outlives this process and is no child of it. They give nothing, or a
    /// description of what failed.
    std::optional<QString> (*openApplication)(const QString& location);
    /// Opens the percent-encoded `url` with the default handler of its scheme or, for a file, its
    /// type.
    std::optional<QString> (*openUrl)(const QByteArray& url);

    /// Calls `changed` with GNOME's interface setting "color-scheme", now and at each change, on
    /// the main thread and for the life of the process; never where there is no such setting.
    void (*observeColourScheme)(std::function<void(const QByteArray& scheme)> changed);
};

/// The module's only symbol, a GioModuleFunction. From any thread; the same answer each time.
constexpr char gioModuleSymbol[] = "velmoraGioModule";
using GioModuleFunction = const GioModule& (*)();

} // namespace velmora
