#include "foundation/Environment.h"

#include <QDir>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace velmora {
namespace {

TEST(EnvironmentTest, TakesAMissingHomeFromThePasswordDatabase) {
    const QByteArray before = qgetenv("HOME");
    const QByteArray fromDatabase = ::getpwuid(::getuid())->pw_dir;
    for (const char* home : {"", "/somewhere/else"}) {
        qputenv("HOME", home);
        Environment::repair();
        EXPECT_EQ(QDir::homePath().toUtf8(), *home ? QByteArray(home) : fromDatabase);
    }
    qputenv("HOME", before);
}

} // namespace
} // namespace velmora
