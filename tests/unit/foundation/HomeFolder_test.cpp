#include "foundation/HomeFolder.h"

#include <QDir>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

TEST(HomeFolder, IsThePasswordDatabasesWhenTheEnvironmentNamesNone) {
    const QByteArray before = qgetenv("HOME");
    const QByteArray fromDatabase = ::getpwuid(::getuid())->pw_dir;
    for (const char* home : {"", "/somewhere/else"}) {
        qputenv("HOME", home);
        velmora::ensureHomeFolder();
        EXPECT_EQ(QDir::homePath().toUtf8(), *home ? QByteArray(home) : fromDatabase);
    }
    qputenv("HOME", before);
}
