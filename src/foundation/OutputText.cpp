#include "foundation/OutputText.h"

namespace velmora {

void OutputText::append(QByteArrayView bytes) {
    const QByteArrayView kept = bytes.first(std::min(bytes.size(), limit_ - size_));
    size_ += kept.size();
    text_ += QString(decoder_(kept));
    const QByteArrayView dropped = bytes.sliced(kept.size());
    if (dropped.isEmpty())
        return;
    truncated_ = true;
    // Decoded only for the verdict.
    const QString unused = decoder_(dropped);
}

std::optional<QString> OutputText::take() {
    // A character left unfinished shows when anything but its rest follows.
    const QString unused = decoder_(QByteArrayView("\n"));
    if (decoder_.hasError())
        return std::nullopt;
    return std::move(text_);
}

} // namespace velmora
