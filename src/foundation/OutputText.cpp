#include "foundation/OutputText.h"

namespace velmora {
namespace {

/// Whether a byte of UTF-8 goes on with a character rather than beginning one.
bool isContinuation(char byte) {
    return (byte & 0xC0) == 0x80;
}

} // namespace

void OutputText::append(QByteArrayView bytes, qsizetype room) {
    const QString decoded = decoder_(bytes);
    if (decoder_.hasError())
        text_ = {};
    if (decoder_.hasError() || truncated_ || bytes.isEmpty())
        return;
    const qsizetype kept = qBound(qsizetype(0), room, bytes.size());
    text_ += bytes.first(kept);
    if (kept == bytes.size())
        return;
    truncated_ = true;
    if (isContinuation(bytes[kept])) {
        while (isContinuation(text_.back()))
            text_.chop(1);
        text_.chop(1);
    }
}

std::optional<QByteArray> OutputText::take() {
    // A character left unfinished shows when anything but its rest follows.
    const QString decoded = decoder_(QByteArrayView("\n"));
    if (decoder_.hasError())
        return std::nullopt;
    return std::move(text_);
}

} // namespace velmora
