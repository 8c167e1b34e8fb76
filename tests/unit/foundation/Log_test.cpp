#include "foundation/FileDescriptor.h"
#include "foundation/Log.h"

#include <QByteArray>
#include <QList>
#include <array>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Stands in for one of the process's streams while it lives.
class Redirected {
public:
    Redirected(int stream, int replacement) : stream_(stream), original_(::dup(stream)) {
        ::dup2(replacement, stream);
    }
    ~Redirected() { ::dup2(original_.get(), stream_); }

private:
    int stream_;
    FileDescriptor original_;
};

TEST(Log, HoldsNobodyUpAndKeepsEveryLineInOrder) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    constexpr int lines = 5000; // more than a pipe holds
    QByteArray text;
    {
        const Redirected error(STDERR_FILENO, writing.get());
        const Redirected output(STDOUT_FILENO, writing.get());
        writing.reset();
        for (int i = 0; i < lines; ++i)
            i % 2 ? Log::write(u"line %1ä"_s.arg(i)) : Log::writeDiagnostic(u"line %1ä"_s.arg(i));
        // Only now anybody reads.
        std::array<char, 65536> buffer{};
        while (text.count('\n') < lines) {
            const ssize_t count = ::read(reading.get(), buffer.data(), buffer.size());
            ASSERT_GT(count, 0);
            text.append(buffer.data(), count);
        }
    }
    const QList<QByteArray> found = text.split('\n');
    for (int i = 0; i < lines; ++i)
        ASSERT_TRUE(found[i].endsWith(u"line %1ä"_s.arg(i).toUtf8())) << found[i].constData();
}

} // namespace
} // namespace velmora
