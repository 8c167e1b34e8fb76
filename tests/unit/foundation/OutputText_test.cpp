#include "foundation/OutputText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using velmora::OutputText;

namespace {

constexpr qsizetype noLimit = 1000;

/// Feeds `bytes` in two pieces, the second beginning at `split`.
OutputText fed(const QByteArray& bytes, qsizetype split, qsizetype limit) {
    OutputText text(limit);
    text.append(QByteArrayView(bytes).first(split));
    text.append(QByteArrayView(bytes).sliced(split));
    return text;
}

const QString sample = u"\ufeffaä€😀\0b\n"_s; // every length of character, a mark and a NUL

} // namespace

TEST(OutputText, KeepsTextWhereverThePiecesBreak) {
    const QByteArray bytes = sample.toUtf8();
    for (qsizetype split = 0; split <= bytes.size(); ++split) {
        OutputText text = fed(bytes, split, noLimit);
        EXPECT_EQ(text.take(), sample) << "split at " << split;
        EXPECT_FALSE(text.truncated());
    }
}

TEST(OutputText, CutsAtACharacterBoundary) {
    const QByteArray bytes = sample.toUtf8();
    for (qsizetype limit = 0; limit <= bytes.size(); ++limit) {
        // The longest run of whole characters within the limit.
        qsizetype boundary = limit;
        while (boundary < bytes.size() && (bytes[boundary] & 0xC0) == 0x80)
            --boundary;
        for (qsizetype split = 0; split <= bytes.size(); ++split) {
            OutputText text = fed(bytes, split, limit);
            EXPECT_EQ(text.truncated(), limit < bytes.size());
            EXPECT_EQ(
                text.take(), QString::fromUtf8(bytes.first(boundary))
                                 .prepend(boundary >= 3 ? u"\ufeff"_s : QString()))
                << "limit " << limit << " split at " << split;
        }
    }
}

TEST(OutputText, RejectsWhatIsNotUtf8EvenBeyondTheLimit) {
    const QByteArray wrong[] = {
        "a\xff", "\x80z",    "\xc0\x80",     "\xed\xa0\x80", "\xf5\x80\x80\x80",
        "a\xc3", "\xe2\x82", "\xf0\x9f\x98",
    };
    for (const QByteArray& bytes : wrong)
        for (qsizetype split = 0; split <= bytes.size(); ++split)
            for (const qsizetype limit : {qsizetype(0), qsizetype(1), noLimit})
                EXPECT_EQ(fed(bytes, split, limit).take(), std::nullopt)
                    << bytes.toHex().constData() << " split at " << split << " limit " << limit;
}
