#include "foundation/IniText.h"

#include <QString>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto byteArrayStart = "@ByteArray("_L1;
constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Behind the line that `position` is in.
qsizetype nextLine(const QByteArray& text, qsizetype position) {
    const qsizetype end = text.indexOf('\n', position);
    return end < 0 ? text.size() : end + 1;
}

constexpr int notADigit = 16;

int digitOf(char byte) {
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : notADigit;
}

/// The UTF-16 unit that the digits at `at` stand for; `at` moves behind them.
QChar unitOf(QByteArrayView text, qsizetype& at, int base) {
    uint unit = 0;
    for (; at < text.size() && digitOf(text[at]) < base; ++at)
        unit = unit * static_cast<uint>(base) + static_cast<uint>(digitOf(text[at]));
    return QChar(static_cast<char16_t>(unit));
}

/// Appends what the escape at `at`, behind its backslash, stands for; `at` moves behind it. A
/// broken line and an unknown escape stand for nothing.
void unescape(QByteArrayView text, qsizetype& at, QString& result) {
    constexpr QByteArrayView names = "abfnrtv\"?'\\";
    constexpr QByteArrayView meanings = "\a\b\f\n\r\t\v\"?'\\";
    if (at == text.size())
        return;
    if (digitOf(text[at]) < 8) {
        result += unitOf(text, at, 8);
        return;
    }
    const char name = text[at++];
    if (const qsizetype index = names.indexOf(name); index >= 0)
        result += QLatin1Char(meanings[index]);
    else if (name == 'x' && at < text.size() && digitOf(text[at]) < notADigit)
        result += unitOf(text, at, 16);
    else if (name == '\r' && at < text.size() && text[at] == '\n')
        ++at;
}

QString unescaped(QByteArrayView text) {
    QString result;
    result.reserve(text.size());
    bool quoted = false;
    qsizetype kept = 0; // spaces at the end are dropped down to here
    const auto skipBlanks = [&](qsizetype at) {
        while (at < text.size() && isBlank(text[at]))
            ++at;
        return at;
    };
    for (qsizetype at = skipBlanks(0); at < text.size();) {
        if (text[at] == '"') {
            quoted = !quoted;
            at = quoted ? at + 1 : skipBlanks(at + 1);
            kept = std::numeric_limits<qsizetype>::max();
        } else if (text[at] == '\\') {
            unescape(text, ++at, result);
            kept = std::max(kept, result.size());
        } else {
            const auto isPlain = [](char byte) { return byte != '"' && byte != '\\'; };
            const auto* const start = text.begin() + at;
            const auto* const end = std::find_if_not(start, text.end(), isPlain);
            result += QString::fromUtf8(start, end - start);
            at += end - start;
        }
    }
    while (result.size() > kept && result.back().isSpace())
        result.chop(1);
    return result;
}

} // namespace

IniText::IniText(const QByteArray& text) {
    qsizetype start = text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    if (start > 0)
        pieces_.append({text.first(start), {}, {}});
    for (qsizetype end = start; start < text.size(); start = end) {
        while (end < text.size() && isBlank(text[end]))
            ++end;
        if (end == start && text[start] == '[') {
            end = addSection(text, start);
        } else if (end == start && text[start] != ';' && text[start] != '#') {
            end = addEntry(text, start);
        } else {
            if (end == start)
                end = nextLine(text, start);
            pieces_.append({text.sliced(start, end - start), {}, {}});
        }
    }
}

qsizetype IniText::addSection(const QByteArray& text, qsizetype start) {
    const qsizetype end = nextLine(text, start);
    const QByteArray line = text.sliced(start, end - start);
    qsizetype bracket = line.indexOf(']');
    if (bracket < 0) {
        noteBadLine(text, start);
        bracket = line.size();
    }
    const QByteArray name = line.sliced(1, bracket - 1).trimmed();
    const bool isWhole = bracket < line.size() && line.endsWith('\n');
    pieces_.append({isWhole ? line : '[' + name + "]\n", {}, {}});
    inGeneral_ = name.toLower() == "general";
    if (inGeneral_ && newEntry_ < 0)
        newEntry_ = pieces_.size();
    return end;
}

qsizetype IniText::addEntry(const QByteArray& text, qsizetype start) {
    bool quoted = false;
    qsizetype equals = -1;
    qsizetype end = start;
    for (; end < text.size(); ++end) {
        const char byte = text[end];
        if (byte == '\\')
            end += QByteArrayView(text).sliced(end + 1).startsWith("\r\n") ? 2 : 1;
        else if (byte == '"')
            quoted = !quoted;
        else if (!quoted && (byte == '\n' || byte == '\r' || byte == ';'))
            break;
        else if (!quoted && byte == '=' && equals < 0)
            equals = end;
    }
    end = std::min(end, text.size());
    if (equals < 0 || quoted)
        noteBadLine(text, start);
    if (equals < 0)
        return end;
    const QByteArray name = text.sliced(start, equals - start).trimmed();
    Piece entry{text.sliced(start, end - start), {}, text.sliced(equals + 1, end - equals - 1)};
    if (quoted) { // its end is lost
        entry.written = written(read(entry.written));
        entry.text = name + '=' + entry.written;
    }
    if (inGeneral_)
        entry.key = QByteArray::fromPercentEncoding(name);
    pieces_.append(entry);
    return end;
}

void IniText::noteBadLine(const QByteArray& text, qsizetype position) {
    if (firstBadLine_ == 0)
        firstBadLine_ = 1 + QByteArrayView(text).first(position).count('\n');
}

const IniText::Piece* IniText::entry(const QByteArray& key) const {
    // Of two, the later one counts.
    const auto found = std::find_if(
        pieces_.crbegin(), pieces_.crend(), [&](const Piece& piece) { return piece.key == key; });
    return found == pieces_.crend() ? nullptr : &*found;
}

std::optional<QByteArray> IniText::value(const QByteArray& key) const {
    const Piece* const found = entry(key);
    return found ? std::optional(read(found->written)) : std::nullopt;
}

void IniText::set(const QByteArray& key, const QByteArray& written) {
    const QByteArray text = key.toPercentEncoding() + '=' + written;
    if (const Piece* const found = entry(key)) {
        pieces_.replace(found - pieces_.constData(), {text, key, written});
        return;
    }
    if (newEntry_ < 0) {
        newEntry_ = 1;
        pieces_.prepend({"[General]\n", {}, {}});
    }
    // At the top: whatever the end of the file is like, this stands on a line of its own.
    pieces_.insert(newEntry_, {text, key, written});
    pieces_.insert(newEntry_ + 1, {"\n", {}, {}});
}

QByteArray IniText::text() const {
    QByteArray all;
    for (const Piece& piece : pieces_)
        all += piece.text;
    return all;
}

QByteArray IniText::written(const QByteArray& bytes) {
    constexpr auto digits = "0123456789abcdef";
    QByteArray text;
    text.reserve(bytes.size() * 5 / 4 + 16);
    text.append('"').append(byteArrayStart);
    bool afterNumber = false; // whose digits a further digit would join
    for (const char byte : bytes) {
        const bool isControl = static_cast<unsigned char>(byte) < 0x20;
        const bool isPlain = !isControl && static_cast<unsigned char>(byte) < 0x7f;
        const bool isNumber = !isPlain || (afterNumber && digitOf(byte) < notADigit);
        if (isNumber) {
            const auto value = static_cast<unsigned char>(byte);
            text.append("\\x").append(digits[value >> 4]).append(digits[value & 15]);
        } else {
            if (byte == '"' || byte == '\\')
                text += '\\';
            text += byte;
        }
        afterNumber = isNumber;
    }
    return text.append(")\"");
}

QByteArray IniText::read(const QByteArray& written) {
    const QString text = unescaped(written);
    if (text.startsWith(byteArrayStart) && text.endsWith(u')'))
        return QStringView(text).sliced(byteArrayStart.size()).chopped(1).toLatin1();
    return text.sliced(text.startsWith("@@"_L1) ? 1 : 0).toUtf8();
}

} // namespace velmora
