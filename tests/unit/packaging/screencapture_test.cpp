// The screencapture command, run with made-up screenshot tools that write down their arguments.

#include "foundation/Bundle.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(Screencapture, UsesTheToolsThatAreThere) {
    const QTemporaryDir folder;
    for (const QString& tool : {u"mkdir"_s, u"mktemp"_s, u"rm"_s})
        QFile::link(QStandardPaths::findExecutable(tool), folder.filePath(tool));
    // A tool that writes its name and arguments to "calls" and an image to its last argument.
    const auto install = [&](const char* tool, const char* image) {
        QFile file(folder.filePath(QString::fromLatin1(tool)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            QByteArray("#!/bin/sh\necho ") + tool +
            " \"$@\" >>calls\n"
            "for last; do :; done\nprintf '" +
            image + "' >\"$last\"\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    const struct {
        const char* newTool;
        const char* arguments;
        int status;
        const char* said; ///< a call, or the start of what it complains of; FOLDER is the test's
    } cases[] = {
        {"", "-i shot.png", 1, "screencapture: no screenshot tool"},
        {"", "", 1, "screencapture: no file"},
        {"", "-Z shot.png", 1, "screencapture: usage"},
        // It would wait for a selection.
        {"import", "-i shot.png", 0, "import -window root FOLDER/shot.png\n"},
        {"", "-w shot.png", 0, "import -window root FOLDER/shot.png\n"},
        {"scrot", "-c", 1, "nor xclip is installed"},
        {"maim", "-i FOLDER/new/shot.png", 0, "maim -s FOLDER/new/shot.png\n"},
        {"", "-xw relative.png", 0, "maim -s FOLDER/relative.png\n"},
        {"", "relative.png", 0, "maim FOLDER/relative.png\n"},
        {"xclip", "-ic", 0, "xclip -selection clipboard -t image/png -i /"},
        // A desktop's own tool comes before the bare ones.
        {"gnome-screenshot", "-i FOLDER/a.png", 0, "gnome-screenshot -a -f FOLDER/a.png\n"},
        {"gnome-screenshot", "b.png", 1, "screencapture: nothing was captured"},
    };
    for (const auto& [newTool, arguments, status, said] : cases) {
        if (*newTool)
            install(newTool, QByteArrayView(said).endsWith("captured") ? "" : "image");
        const auto resolved = [&](const char* text) {
            return QString::fromLatin1(text).replace(u"FOLDER"_s, folder.path());
        };
        QFile calls(folder.filePath(u"calls"_s));
        calls.remove();
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(u"PATH"_s, folder.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(
            Bundle::helperPath().value() + u"/screencapture"_s,
            resolved(arguments).split(u' ', Qt::SkipEmptyParts));
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), status) << arguments;
        calls.open(QIODevice::ReadOnly);
        const QString all = QString::fromUtf8(process.readAllStandardError() + calls.readAll());
        EXPECT_TRUE(all.contains(resolved(said))) << qPrintable(all);
        // A picture for the clipboard does not stay in a file.
        const QString last = all.trimmed().section(u' ', -1);
        EXPECT_TRUE(!all.contains(u"xclip -s"_s) || !QFile::exists(last.section(u'/', 0, -2)));
    }
}
