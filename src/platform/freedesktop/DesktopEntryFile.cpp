#include "platform/freedesktop/DesktopEntryFile.h"

namespace velmora {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// What a line that matters can start with. Most others are translated comments and keywords:
/// passing them over early halves the time of reading.
constexpr std::string_view lineStarts = "[NTIOH \t\r";

/// The character of an escape sequence's second letter in a value.
char unescaped(char letter) {
    switch (letter) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        return letter;
    }
}

QString string(std::string_view value) {
    if (value.find('\\') == std::string_view::npos)
        return QString::fromUtf8(value.data(), qsizetype(value.size()));
    QByteArray plain;
    plain.reserve(qsizetype(value.size()));
    for (std::size_t i = 0; i < value.size(); ++i)
        plain += value[i] == '\\' && i + 1 < value.size() ? unescaped(value[++i]) : value[i];
    return QString::fromUtf8(plain);
}

QStringList list(std::string_view value) {
    return string(value).split(u';', Qt::SkipEmptyParts);
}

/// The language of a key "Name[language]"; nothing for another key.
std::optional<std::string_view> nameLanguage(std::string_view key) {
    if (!key.starts_with("Name[") || !key.ends_with(']'))
        return {};
    return key.substr(5, key.size() - 6);
}

} // namespace

std::optional<DesktopEntryFile>
DesktopEntryFile::parse(std::string_view text, const QByteArrayList& languages) {
    DesktopEntryFile entry;
    std::string_view type;
    std::string_view name;
    qsizetype nameRank = languages.size(); // of the language of `name`: less is better
    bool inside = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view whole = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (whole.empty() || lineStarts.find(whole.front()) == std::string_view::npos)
            continue;
        const std::string_view line = trimmed(whole);
        if (line.empty())
            continue;
        if (line.front() == '[') {
            if (inside)
                break; // the group comes once, and first
            inside = line == "[Desktop Entry]";
            continue;
        }
        const auto equals = line.find('=');
        if (!inside || equals == std::string_view::npos)
            continue;
        const std::string_view key = trimmed(line.substr(0, equals));
        const std::string_view value = trimmed(line.substr(equals + 1));
        if (const auto language = nameLanguage(key)) {
            for (qsizetype rank = 0; rank < nameRank; ++rank) {
                if (std::string_view(languages[rank]) == *language && !value.empty()) {
                    name = value;
                    nameRank = rank;
                }
            }
        } else if (key == "Name") {
            if (nameRank == languages.size())
                name = value;
        } else if (key == "Type") {
            type = value;
        } else if (key == "Icon") {
            entry.icon = string(value);
        } else if (key == "TryExec") {
            entry.tryExec = string(value);
        } else if (key == "OnlyShowIn") {
            entry.onlyShowIn = list(value);
            entry.hasOnlyShowIn = true;
        } else if (key == "NotShowIn") {
            entry.notShowIn = list(value);
        } else if (key == "Hidden" || key == "NoDisplay") {
            entry.hidden |= value == "true" || value == "1";
        }
    }
    entry.name = string(name);
    if (type != "Application" || entry.name.trimmed().isEmpty())
        return {};
    return entry;
}

bool DesktopEntryFile::isShownIn(const QStringList& desktops) const {
    for (const QString& desktop : desktops) {
        if (onlyShowIn.contains(desktop))
            return true;
        if (notShowIn.contains(desktop))
            return false;
    }
    return !hasOnlyShowIn;
}

QByteArrayList localizedKeyLanguages(const QByteArrayList& locales) {
    QByteArrayList languages;
    const auto add = [&languages](const QByteArray& language) {
        if (!languages.contains(language))
            languages.append(language);
    };
    for (const QByteArray& locale : locales) {
        const QByteArray base = locale.split('@').first();
        const QByteArray modifier = locale.mid(base.size());
        const QByteArray place = base.split('.').first();
        const QByteArray language = place.split('_').first();
        if (language.isEmpty() || language == "C" || language == "POSIX")
            continue;
        add(place + modifier);
        add(place);
        add(language + modifier);
        add(language);
    }
    return languages;
}

} // namespace velmora
