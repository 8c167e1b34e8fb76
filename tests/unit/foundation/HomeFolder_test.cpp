#include "foundation/HomeFolder.h"

#include <QDir>
#include <QProcess>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using velmora::ensureHomeFolder;

namespace {

class HomeFolder : public testing::Test {
protected:
    ~HomeFolder() override { qputenv("HOME", before_); }

private:
    const QByteArray before_ = qgetenv("HOME");
};

TEST_F(HomeFolder, IsThePasswordDatabasesWhenTheEnvironmentNamesNone) {
    QProcess database;
    database.start(u"getent"_s, {u"passwd"_s, QString::number(::getuid())});
    ASSERT_TRUE(database.waitForFinished());
    const QList<QByteArray> entry = database.readAllStandardOutput().split(':');
    ASSERT_EQ(entry.size(), 7);
    qunsetenv("HOME");
    ensureHomeFolder();
    EXPECT_EQ(QDir::homePath().toUtf8(), entry[5]);
    qputenv("HOME", "");
    ensureHomeFolder();
    EXPECT_EQ(qgetenv("HOME"), entry[5]);
}

TEST_F(HomeFolder, StaysAsNamed) {
    qputenv("HOME", "/somewhere/else");
    ensureHomeFolder();
    EXPECT_EQ(qgetenv("HOME"), "/somewhere/else");
}

} // namespace
