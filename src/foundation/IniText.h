#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

namespace velmora {

/// The text of a settings file in the INI form of QSettings: the entries of its section [General],
/// by key. Everything else (other sections, keys that nobody sets, comments, also those that begin
/// with a number sign) stays byte for byte as it is. Keys are ASCII without slashes.
class IniText {
public:
    IniText() = default;
    explicit IniText(const QByteArray& text);

    /// The bytes under `key`; absent when there are none. What is no byte array in that form, such
    /// as a value typed by hand or cut short, is read as text and given in UTF-8.
    std::optional<QByteArray> value(const QByteArray& key) const;

    /// Replaces the entry, or adds one. `written` comes from one of the two below.
    void set(const QByteArray& key, const QByteArray& written);
    static QByteArray written(const QByteArray& bytes);
    static QByteArray written(bool boolean) { return boolean ? "true" : "false"; }
    /// The bytes that `written` stands for.
    static QByteArray read(const QByteArray& written);

    /// The whole text. Of a line that did not parse, only what can be read is in it.
    QByteArray text() const;

    /// The first line, counted from 1, that did not parse; 0 when all did.
    qsizetype firstBadLine() const { return firstBadLine_; }

private:
    /// An entry, or what stands between two.
    struct Piece {
        QByteArray text;
        QByteArray key; ///< of an entry in [General]; empty otherwise
        QByteArray written;
    };

    qsizetype addSection(const QByteArray& text, qsizetype start);
    qsizetype addEntry(const QByteArray& text, qsizetype start);
    const Piece* entry(const QByteArray& key) const;
    void noteBadLine(const QByteArray& text, qsizetype position);

    QList<Piece> pieces_;
    bool inGeneral_ = true;   ///< while reading; what stands before any section is in it too
    qsizetype newEntry_ = -1; ///< where one goes: behind the section's title, if there is one
    qsizetype firstBadLine_ = 0;
};

} // namespace velmora
