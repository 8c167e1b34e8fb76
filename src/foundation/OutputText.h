#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>
#include <optional>

namespace velmora {

/// Bytes that arrive piece by piece, judged as UTF-8 as a whole and kept as text up to a limit.
class OutputText {
public:
    /// Keeps the text of at most the first `limit` bytes.
    explicit OutputText(qsizetype limit) : limit_(limit) {}

    /// Takes the next piece; it may begin and end inside a character.
    void append(QByteArrayView bytes);

    /// More bytes than the limit arrived.
    bool truncated() const { return truncated_; }

    /// Ends the input: the text kept, cut at a character boundary, or nothing when the bytes, those
    /// beyond the limit included, are not UTF-8.
    std::optional<QString> take();

private:
    qsizetype limit_;
    qsizetype size_ = 0;
    bool truncated_ = false;
    QString text_;
    /// Holds back an unfinished character between pieces, and so at the limit, too.
    QStringDecoder decoder_{QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom};
};

} // namespace velmora
