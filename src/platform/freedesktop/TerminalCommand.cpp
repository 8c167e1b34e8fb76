#include "platform/freedesktop/TerminalCommand.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace velmora {

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

} // namespace velmora
