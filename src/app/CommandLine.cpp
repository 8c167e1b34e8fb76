#include "app/CommandLine.h"

#include "foundation/Bundle.h"

#include <QFile>
#include <QFileInfo>
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
    bool takesFile = false;
};

constexpr Option options[] = {
    {"toggle", RemoteCommand::toggle, "show or hide the bar"},
    {"show", RemoteCommand::show, "show the bar"},
    {"hide", RemoteCommand::hide, "hide the bar"},
    {"settings", RemoteCommand::settings, "open the settings"},
    {"quit", RemoteCommand::quit, "end Velmora"},
    {"import", RemoteCommand::importSetup, "take all buttons and preferences from FILE", true},
    {"export", RemoteCommand::exportSetup, "write them to FILE", true},
};

/// The command by its option's name; nothing for any other name.
const Option* optionOf(std::string_view name) {
    const auto option = std::ranges::find(options, name, &Option::name);
    return option == std::end(options) ? nullptr : option;
}

constexpr char endOfName = '/'; ///< an absolute path begins with it

QString helpLine(std::string_view name, const char* meaning) {
    constexpr int nameWidth = 14;
    const Option* option = optionOf(name);
    const QString shown =
        QLatin1StringView(name.data()) + (option && option->takesFile ? u" FILE"_s : QString());
    return u"  --"_s + shown.leftJustified(nameWidth) + QString::fromLatin1(meaning);
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

QByteArray encoded(const RemoteRequest& request) {
    const auto option = std::ranges::find(options, request.command, &Option::command);
    const QByteArray name(option == std::end(options) ? "" : option->name.data());
    return name + QFile::encodeName(request.file);
}

std::optional<RemoteRequest> decodedRequest(const QByteArray& bytes) {
    if (bytes.isEmpty())
        return RemoteRequest();
    const qsizetype end = bytes.indexOf(endOfName);
    const QByteArray name = end < 0 ? bytes : bytes.left(end);
    const Option* option = optionOf(std::string_view(name));
    if (!option || option->takesFile != (end >= 0))
        return {};
    return RemoteRequest{
        option->command, end < 0 ? QString() : QFile::decodeName(bytes.sliced(end))};
}

CommandLine readCommandLine(std::span<char* const> arguments) {
    CommandLine line;
    QByteArray first; // of the commands
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const QByteArray argument = arguments[index];
        const QString shown = QString::fromLocal8Bit(argument);
        if (!argument.startsWith("--")) {
            const bool isQts = argument.startsWith('-');
            if (!isQts)
                line.error =
                    u"velmora: “%1” is no option; “velmora --help” lists them."_s.arg(shown);
            else if (index + 1 < arguments.size() && *arguments[index + 1] != '-')
                ++index;
            continue;
        }
        const QByteArray name = argument.mid(2);
        const Option* option = optionOf(std::string_view(name));
        const bool isSecond = !first.isEmpty();
        if (!isSecond)
            first = argument;
        if (name == "help") {
            line.answer = help();
        } else if (name == "version") {
            line.answer = version();
        } else if (!option) {
            line.error = u"velmora: unknown option “%1”; “velmora --help” lists them."_s.arg(shown);
        } else if (!option->takesFile) {
            line.request = {option->command};
        } else if (++index < arguments.size() && *arguments[index]) {
            const QString file = QFile::decodeName(arguments[index]);
            line.request = {option->command, QFileInfo(file).absoluteFilePath()};
        } else {
            line.error = u"velmora: %1 takes a file."_s.arg(shown);
        }
        if (isSecond && line.error.isEmpty())
            line.error = u"velmora: %1 and %2 do not go together."_s.arg(
                QString::fromLocal8Bit(first), shown);
    }
    return line;
}

} // namespace velmora
