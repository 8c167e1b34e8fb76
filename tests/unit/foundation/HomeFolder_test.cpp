#include "foundation/HomeFolder.h"

#include <QDir>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

using velmora::ensureHomeFolder;

TEST(HomeFolder, IsThePasswordDatabasesWhenTheEnvironmentNamesNone) {
    const QByteArray before = qgetenv("HOME");
    const QByteArray fromDatabase = ::getpwuid(::getuid())->pw_dir;
    qunsetenv("HOME");
    ensureHomeFolder();
    EXPECT_EQ(QDir::homePath().toUtf8(), fromDatabase);
    qputenv("HOME", "");
    ensureHomeFolder();
    EXPECT_EQ(qgetenv("HOME"), fromDatabase);
    qputenv("HOME", "/somewhere/else");
    ensureHomeFolder();
    EXPECT_EQ(qgetenv("HOME"), "/somewhere/else");
    qputenv("HOME", before);
}
