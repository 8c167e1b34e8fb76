// The screencapture command, run with made-up screenshot tools that write down their arguments.

#include "foundation/Bundle.h"
#include "foundation/HelperPath.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class ScreencaptureTest : public testing::Test {
protected:
    ScreencaptureTest() {
        for (const QString& tool : {u"mkdir"_s, u"mktemp"_s, u"rm"_s})
            QFile::link(QStandardPaths::findExecutable(tool), folder.filePath(tool));
    }

    /// A tool that writes its name and arguments to "calls" and an image to its last argument.
    void install(const QString& tool, const QString& image = u"image"_s) {
        QFile file(folder.filePath(tool));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            u"#!/bin/sh\necho %1 \"$@\" >>'%2'\nfor last; do :; done\nprintf '%3' >\"$last\"\n"_s
                .arg(tool, folder.filePath(u"calls"_s), image)
                .toUtf8());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// Runs the command in the test's folder; gives its exit status.
    int run(const QStringList& arguments) {
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(u"PATH"_s, folder.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(Bundle::helperPath().value() + u"/screencapture"_s, arguments);
        EXPECT_TRUE(process.waitForFinished());
        errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    QString calls() {
        QFile file(folder.filePath(u"calls"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QTemporaryDir folder;
    QString errors;
};

} // namespace

TEST_F(ScreencaptureTest, TakesWhatIsAskedForIntoTheFile) {
    install(u"maim"_s);
    const QString file = folder.filePath(u"new folder/shot.png"_s);
    EXPECT_EQ(run({u"-i"_s, file}), 0) << qPrintable(errors);
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(run({u"-xw"_s, u"relative.png"_s}), 0);
    EXPECT_EQ(run({u"relative.png"_s}), 0);
    const QString relative = folder.filePath(u"relative.png"_s);
    EXPECT_EQ(calls(), u"maim -s %1\nmaim -s %2\nmaim %2\n"_s.arg(file, relative));

    // A desktop's own tool comes before the bare ones.
    install(u"gnome-screenshot"_s);
    EXPECT_EQ(run({u"-i"_s, file}), 0);
    EXPECT_TRUE(calls().endsWith(u"\ngnome-screenshot -a -f %1\n"_s.arg(file)));
}

TEST_F(ScreencaptureTest, NeverLetsImportWaitForASelection) {
    install(u"import"_s);
    const QString file = folder.filePath(u"shot.png"_s);
    for (const QString& option : {u"-i"_s, u"-w"_s, u"-x"_s}) {
        EXPECT_EQ(run({option, file}), 0) << qPrintable(errors);
        EXPECT_TRUE(calls().endsWith(u"import -window root %1\n"_s.arg(file)));
    }
}

TEST_F(ScreencaptureTest, PutsTheImageOnTheClipboard) {
    install(u"scrot"_s);
    EXPECT_EQ(run({u"-c"_s}), 1);
    EXPECT_TRUE(errors.contains(u"xclip"_s));
    install(u"xclip"_s);
    EXPECT_EQ(run({u"-ic"_s}), 0) << qPrintable(errors);
    EXPECT_TRUE(calls().contains(u"xclip -selection clipboard -t image/png -i /"_s));
    // The temporary image is gone.
    const QString temporary = calls().trimmed().section(u' ', -1);
    EXPECT_FALSE(QFile::exists(temporary.section(u'/', 0, -2)));
}

TEST_F(ScreencaptureTest, FailsWithAMessage) {
    EXPECT_EQ(run({u"-i"_s, u"shot.png"_s}), 1);
    EXPECT_TRUE(errors.startsWith(u"screencapture: no screenshot tool"_s)) << qPrintable(errors);
    install(u"import"_s, QString());
    EXPECT_EQ(run({u"-i"_s, u"shot.png"_s}), 1);
    EXPECT_EQ(errors, u"screencapture: nothing was captured\n"_s);
    EXPECT_NE(run({}), 0);
    EXPECT_NE(run({u"-Z"_s, u"shot.png"_s}), 0);
}

TEST(HelperPath, IsLastAndThereOnce) {
    const QByteArray before = qgetenv("PATH");
    appendHelperPath();
    appendHelperPath();
    EXPECT_EQ(qgetenv("PATH"), before + ':' + Bundle::helperPath().value().toUtf8());
    EXPECT_FALSE(QStandardPaths::findExecutable(u"screencapture"_s).isEmpty());
    qputenv("PATH", before);
}
