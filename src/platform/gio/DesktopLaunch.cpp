#include "platform/gio/DesktopLaunch.h"

#include "platform/gio/GioPointer.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <unistd.h>
#include <variant>

using namespace Qt::StringLiterals;

namespace velmora::DesktopLaunch {
namespace {

using Failure = std::optional<QString>;
using Entry = GioPointer<GDesktopAppInfo>;

/// Why GIO does not accept the file as an application: it only says that it does not.
QString whyUnusable(const QString& location) {
    if (QFileInfo(location).isDir())
        return u"“%1” is a folder, not a desktop entry"_s.arg(location);
    const GioPointer<GKeyFile> file(g_key_file_new());
    GioError error;
    if (!g_key_file_load_from_file(
            file.get(), QFile::encodeName(location).constData(), G_KEY_FILE_NONE, error.out()))
        return error.message();
    for (const char* key : {G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, G_KEY_FILE_DESKTOP_KEY_EXEC}) {
        const GioPointer<gchar> command(
            g_key_file_get_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr));
        gchar** arguments = nullptr;
        if (!command || !g_shell_parse_argv(command.get(), nullptr, &arguments, nullptr))
            continue;
        const GioPointer<gchar*> owner(arguments);
        const GioPointer<gchar> program(g_find_program_in_path(arguments[0]));
        if (!program)
            return u"The program “%1” does not exist or is not executable"_s.arg(
                QString::fromUtf8(arguments[0]));
    }
    return u"“%1” describes no application that can be started"_s.arg(location);
}

/// The same entry after `edit` has changed what its file says.
template<typename Edit>
std::variant<Entry, QString> edited(const Entry& entry, const Edit& edit) {
    const GioPointer<GKeyFile> file(g_key_file_new());
    const char* const path = g_desktop_app_info_get_filename(entry.get());
    GioError error;
    if (!g_key_file_load_from_file(file.get(), path, G_KEY_FILE_KEEP_TRANSLATIONS, error.out()))
        return error.message();
    edit(*file.get());
    Entry changed(g_desktop_app_info_new_from_keyfile(file.get()));
    if (!changed)
        return whyUnusable(QString::fromUtf8(path));
    return changed;
}

/// What to put before a command to run it in a terminal emulator; nothing when none is installed.
std::optional<QString> terminalCommand() {
    // The user's choice, the system's choice, then by name.
    static constexpr struct {
        QStringView program;
        QStringView argument;
    } terminals[] = {
        {u"xdg-terminal-exec", u""},
        {u"x-terminal-emulator", u"-e"},
        {u"gnome-terminal", u"--"},
        {u"konsole", u"-e"},
        {u"xfce4-terminal", u"-x"},
        {u"mate-terminal", u"-x"},
        {u"kitty", u""},
        {u"alacritty", u"-e"},
        {u"foot", u""},
        {u"xterm", u"-e"},
    };
    for (const auto& terminal : terminals)
        if (!QStandardPaths::findExecutable(terminal.program.toString()).isEmpty())
            return u"%1 %2"_s.arg(terminal.program, terminal.argument);
    return std::nullopt;
}

/// The same entry with its command run in the user's terminal emulator. GIO has a list of terminals
/// of its own that lacks Debian's x-terminal-emulator and does not report that none is there.
std::variant<Entry, QString> inTerminal(const Entry& entry) {
    const auto terminal = terminalCommand();
    if (!terminal)
        return u"No terminal emulator is installed"_s;
    const char* command = g_app_info_get_commandline(G_APP_INFO(entry.get()));
    const QString inside = *terminal + u' ' + QString::fromUtf8(command);
    return edited(entry, [&](GKeyFile& file) {
        g_key_file_set_string(
            &file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_EXEC,
            inside.toUtf8().constData());
        g_key_file_set_boolean(
            &file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_TERMINAL, FALSE);
    });
}

/// The same entry without the offer to be started over the bus.
std::variant<Entry, QString> withoutBus(const Entry& entry) {
    return edited(entry, [](GKeyFile& file) {
        g_key_file_set_boolean(
            &file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE, FALSE);
    });
}

/// Asks the session bus to activate the application and waits for the answer. Gives nothing where
/// the bus has gone, which GIO may not have noticed before: then there is nobody to ask.
std::optional<Failure> activate(const Entry& entry, GList* urls) {
    // Answers arrive through the thread's default context, whoever runs the main thread's.
    const GioPointer<GMainContext> mainContext(g_main_context_new());
    g_main_context_push_thread_default(mainContext.get());
    GioPointer<GAsyncResult> result;
    g_app_info_launch_uris_async(
        G_APP_INFO(entry.get()), urls, nullptr, nullptr,
        [](GObject*, GAsyncResult* arrived, gpointer target) {
            static_cast<GioPointer<GAsyncResult>*>(target)->reset(
                G_ASYNC_RESULT(g_object_ref(arrived)));
        },
        &result);
    while (!result)
        g_main_context_iteration(mainContext.get(), TRUE);
    g_main_context_pop_thread_default(mainContext.get());
    GioError error;
    if (g_app_info_launch_uris_finish(G_APP_INFO(entry.get()), result.get(), error.out()))
        return std::optional<Failure>(std::in_place, std::nullopt);
    if (error.isConnectionClosed())
        return std::nullopt;
    return std::optional<Failure>(std::in_place, error.message());
}

Failure launch(Entry entry, GList* urls) {
    // GIO connects by itself; we hold the shared connection meanwhile so that losing the bus does
    // not end this process, as it would by default.
    const GioPointer<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (bus)
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    if (bus &&
        g_desktop_app_info_get_boolean(entry.get(), G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE)) {
        if (const auto answer = activate(entry, urls))
            return *answer;
        auto changed = withoutBus(entry);
        if (const auto* failure = std::get_if<QString>(&changed))
            return *failure;
        entry = std::get<Entry>(std::move(changed));
    }

    if (g_desktop_app_info_get_boolean(entry.get(), G_KEY_FILE_DESKTOP_KEY_TERMINAL)) {
        auto changed = inTerminal(entry);
        if (const auto* failure = std::get_if<QString>(&changed))
            return *failure;
        entry = std::get<Entry>(std::move(changed));
    }
    // Without G_SPAWN_DO_NOT_REAP_CHILD the application becomes init's child: nothing to wait for.
    // In a session of its own, Ctrl+C in the terminal that we were started from does not reach it.
    GioError error;
    const bool started = g_desktop_app_info_launch_uris_as_manager(
        entry.get(), urls, nullptr, G_SPAWN_SEARCH_PATH, [](gpointer) { ::setsid(); }, nullptr,
        nullptr, nullptr, error.out());
    if (!started)
        return error.message();
    return std::nullopt;
}

} // namespace

Failure openApplication(const QString& location) {
    Entry entry(g_desktop_app_info_new_from_filename(QFile::encodeName(location).constData()));
    if (!entry)
        return whyUnusable(location);
    return launch(std::move(entry), nullptr);
}

Failure openUrl(const QByteArray& url) {
    const GioPointer<GFile> file(g_file_new_for_uri(url.constData()));
    GioError error;
    GAppInfo* handler = g_file_query_default_handler(file.get(), nullptr, error.out());
    if (!handler)
        return error.message();
    QByteArray text = url;
    GList urls{text.data(), nullptr, nullptr};
    return launch(Entry(G_DESKTOP_APP_INFO(handler)), &urls);
}

} // namespace velmora::DesktopLaunch
