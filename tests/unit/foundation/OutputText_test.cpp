#include "foundation/OutputText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using velmora::OutputText;

namespace {

/// Feeds `bytes` in two pieces, the second beginning at `split`.
OutputText fed(const QByteArray& bytes, qsizetype split, qsizetype limit) {
    OutputText text;
    for (const QByteArrayView piece :
         {QByteArrayView(bytes).first(split), QByteArrayView(bytes).sliced(split)})
        text.append(piece, limit - text.size());
    return text;
}

} // namespace

TEST(OutputText, KeepsWholeCharactersWhereverThePiecesBreak) {
    // Every length of character, a mark and a NUL.
    const QByteArray bytes = u"\ufeffaä€😀\0b\n"_s.toUtf8();
    for (qsizetype limit = 0; limit <= bytes.size() + 1; ++limit) {
        qsizetype boundary = qMin(limit, bytes.size());
        while (boundary < bytes.size() && (bytes[boundary] & 0xC0) == 0x80)
            --boundary;
        for (qsizetype split = 0; split <= bytes.size(); ++split) {
            OutputText text = fed(bytes, split, limit);
            EXPECT_EQ(text.truncated(), limit < bytes.size());
            EXPECT_EQ(text.take(), bytes.first(boundary)) << "limit " << limit << ' ' << split;
        }
    }
}
