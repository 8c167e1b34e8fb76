#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringDecoder>
#include <optional>

namespace velmora {

/// Bytes that arrive piece by piece, judged as UTF-8 as a whole and kept as far as there is room.
class OutputText {
public:
    /// Takes the next piece, which may begin and end inside a character, and keeps at most its
    /// first `room` bytes. What does not fit ends the text kept, whatever room there is later.
    void append(QByteArrayView bytes, qsizetype room);

    /// Bytes kept so far; none any more once it is clear that they are not UTF-8.
    qsizetype size() const { return text_.size(); }

    /// More bytes arrived than were kept.
    bool truncated() const { return truncated_; }

    /// Ends the input: the text kept, UTF-8 that ends with a whole character, or nothing when the
    /// bytes, those not kept included, are not UTF-8.
    std::optional<QByteArray> take();

private:
    bool truncated_ = false;
    QByteArray text_;
    /// Only for the verdict: what it decodes is dropped.
    QStringDecoder decoder_{QStringDecoder::Utf8};
};

} // namespace velmora
