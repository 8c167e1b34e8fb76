#include "foundation/FileDescriptor.h"
#include "foundation/Log.h"

#include <QList>
#include <array>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(Log, HoldsNobodyUpAndKeepsEveryLineWholeAndInOrder) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const FileDescriptor reading(ends[0]);
    const FileDescriptor originals[] = {FileDescriptor(::dup(1)), FileDescriptor(::dup(2))};
    ::dup2(ends[1], STDOUT_FILENO);
    ::dup2(ends[1], STDERR_FILENO);
    ::close(ends[1]);
    constexpr int lines = 5000;           // more than a pipe holds
    const QByteArray large(300'000, 'x'); // and one that does so alone
    for (int i = 0; i < lines; ++i) {
        const QString line = u"line %1ä"_s.arg(i);
        i % 2 ? Log::write(line, i == 7 ? large : QByteArray("é")) : Log::writeDiagnostic(line);
    }
    // Only now anybody reads.
    QByteArray text;
    std::array<char, 65536> buffer{};
    while (text.count('\n') < lines) {
        const ssize_t count = ::read(reading.get(), buffer.data(), buffer.size());
        ASSERT_GT(count, 0);
        text.append(buffer.data(), count);
    }
    ::dup2(originals[0].get(), STDOUT_FILENO);
    ::dup2(originals[1].get(), STDERR_FILENO);
    const QList<QByteArray> found = text.split('\n');
    for (int i = 0; i < lines; ++i) {
        const QByteArray end = i == 7 ? large : QByteArray(i % 2 ? "é" : "");
        ASSERT_TRUE(found[i].endsWith("line " + QByteArray::number(i) + "ä" + end)) << i;
    }
}
