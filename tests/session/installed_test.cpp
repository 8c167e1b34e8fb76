// The program where it was installed: it finds its module and its helpers there, not in the build
// tree.

#include "session/Session.h"

#include <QDirIterator>
#include <QFileInfo>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// Whether a process runs that file.
bool isRunning(const QString& file) {
    for (QDirIterator processes(u"/proc"_s, QDir::Dirs); processes.hasNext();) {
        if (QFileInfo(processes.next() + u"/exe"_s).symLinkTarget() == file)
            return true;
    }
    return false;
}

TEST(Installed, FindsItsModuleAndItsHelpers) {
    const QTemporaryDir prefix;
    QProcess install;
    install.setProcessChannelMode(QProcess::MergedChannels);
    install.start(
        QStringLiteral(VELMORA_CMAKE),
        {u"--install"_s, QStringLiteral(VELMORA_BUILD_TREE), u"--prefix"_s, prefix.path()});
    ASSERT_TRUE(install.waitForFinished()) << install.errorString().toStdString();
    ASSERT_EQ(install.exitCode(), 0) << install.readAll().constData();

    Session session(
        {.shortcuts =
             QList<ShortcutButton>{
                 {u"Launch"_s, {}, LaunchApp{u"Marker"_s, u"marker"_s}, ButtonAlignment::left},
                 {u"Shell"_s,
                  {},
                  ExecuteShellCommand{u"print $commands[screencapture]"_s},
                  ButtonAlignment::left},
                 {u"Keys"_s, {}, PressKeyCombo{{u"Shift"_s}, u"n"_s}, ButtonAlignment::left}},
         .program = prefix.filePath(u"bin/velmora"_s),
         // A helper of the same name elsewhere would come first.
         .environment = {u"PATH=/usr/bin:/bin"_s}});
    session.writeFile(
        u".local/share/applications/marker.desktop"_s,
        "[Desktop Entry]\nType=Application\nName=Marker\nExec=true\n");
    session.launch();
    ASSERT_TRUE(waitFor([&] { return session.buttons().size() == 3; }));
    for (const QRect& place : session.buttons()) {
        session.driver().move(place.center().x(), place.center().y());
        session.driver().click();
    }
    const QString helpers = prefix.filePath(u"lib/velmora/"_s);
    EXPECT_TRUE(session.waitForLog(u"✅ Launched Marker via bundle ID"_s));
    EXPECT_TRUE(session.waitForLog(u"📝 Command output: "_s + helpers + u"screencapture"_s))
        << session.log().join(u'\n').toStdString();
    EXPECT_TRUE(session.waitForLog(u"✅ Key combo sent successfully"_s));
    EXPECT_TRUE(waitFor([&] { return isRunning(helpers + u"velmora-key-watcher"_s); }));
    session.program().end();
    EXPECT_TRUE(waitFor([&] { return !isRunning(helpers + u"velmora-key-watcher"_s); }));
}

} // namespace
