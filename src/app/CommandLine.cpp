#include "app/CommandLine.h"

#include "foundation/Bundle.h"

#include <QStringList>
#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

struct Option {
    std::string_view name;
    RemoteCommand command;
    const char* meaning;
};

constexpr Option options[] = {
    {"toggle", RemoteCommand::toggle, "show or hide the bar"},
    {"show", RemoteCommand::show, "show the bar"},
    {"hide", RemoteCommand::hide, "hide the bar"},
    {"settings", RemoteCommand::settings, "open the settings"},
    {"quit", RemoteCommand::quit, "end Velmora"},
};

QString helpLine(std::string_view name, const char* meaning) {
    constexpr int nameWidth = 12;
    return u"  --"_s + QLatin1StringView(name.data()).toString().leftJustified(nameWidth) +
           QString::fromLatin1(meaning);
}

QString help() {
    QStringList lines{
        u"Usage: velmora [COMMAND]"_s,
        {},
        u"Starts Velmora, or hands the command to the instance that runs; without a command that"_s,
        u"one comes forward."_s,
        {}};
    for (const Option& option : options)
        lines.append(helpLine(option.name, option.meaning));
    lines.append(helpLine("version", "print the version and end"));
    lines.append(helpLine("help", "print this and end"));
    return lines.join(u'\n');
}

QString version() {
    return u"Velmora "_s + Bundle::infoDictionary()
                               .value_or(QVariantMap())
                               .value(Bundle::shortVersionKey)
                               .toString();
}

} // namespace

std::optional<RemoteCommand> remoteCommand(const QByteArray& name) {
    if (name.isEmpty())
        return RemoteCommand::comeForward;
    const auto option = std::ranges::find(options, std::string_view(name), &Option::name);
    return option == std::end(options) ? std::nullopt : std::optional(option->command);
}

QByteArray remoteCommandName(RemoteCommand command) {
    const auto option = std::ranges::find(options, command, &Option::command);
    return option == std::end(options) ? QByteArray() : QByteArray(option->name.data());
}

CommandLine readCommandLine(std::span<char* const> arguments) {
    CommandLine line;
    for (const QByteArray argument :
         arguments.subspan(std::min<std::size_t>(1, arguments.size()))) {
        if (!argument.startsWith("--"))
            continue;
        const QByteArray name = argument.mid(2);
        if (name == "help")
            line.answer = help();
        else if (name == "version")
            line.answer = version();
        else if (const auto command = remoteCommand(name); command && !name.isEmpty())
            line.command = *command;
        else
            line.error = u"velmora: unknown option “%1”; “velmora --help” lists them."_s.arg(
                QString::fromLocal8Bit(argument));
    }
    return line;
}

} // namespace velmora
