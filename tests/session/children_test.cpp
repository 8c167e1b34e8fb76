// What the bar's buttons start goes on when Velmora has ended, however it ended.

#include "session/Session.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// A shell command that tells of its start in a file `name`.started, waits for the file "go", and
/// tells of its end in `name`.done.
QString waitingCommand(const QString& home, const QString& name) {
    return u"touch %1/%2.started; until [ -e %1/go ]; do sleep 0.02; done; touch %1/%2.done"_s.arg(
        home, name);
}

TEST(Children, GoOnWhenVelmoraHasEnded) {
    for (const bool isKilled : {false, true}) {
        SCOPED_TRACE(isKilled ? "killed" : "asked to end");
        const QTemporaryDir folder;
        Session session(
            {.shortcuts = QList<ShortcutButton>{
                 {u"Launch"_s, {}, LaunchApp{u"Waiter"_s, u"waiter"_s}, ButtonAlignment::left},
                 {u"Shell"_s,
                  {},
                  ExecuteShellCommand{waitingCommand(folder.path(), u"shell"_s)},
                  ButtonAlignment::left}}});
        session.writeFile(
            u".local/share/applications/waiter.desktop"_s,
            u"[Desktop Entry]\nType=Application\nName=Waiter\nExec=sh -c \"%1\"\n"_s
                .arg(waitingCommand(folder.path(), u"application"_s))
                .toUtf8());
        session.launch();
        ASSERT_TRUE(waitFor([&] { return session.buttons().size() == 2; }));
        const auto all = [&](const QString& state) {
            return waitFor([&] {
                return QFile::exists(folder.filePath(u"application."_s + state)) &&
                       QFile::exists(folder.filePath(u"shell."_s + state));
            });
        };
        for (const QRect& place : session.buttons()) {
            session.driver().move(place.center().x(), place.center().y());
            session.driver().click();
        }
        ASSERT_TRUE(all(u"started"_s));
        if (isKilled)
            session.program().kill();
        else
            session.program().end();
        EXPECT_TRUE(QFile(folder.filePath(u"go"_s)).open(QIODevice::WriteOnly));
        EXPECT_TRUE(all(u"done"_s));
    }
}

} // namespace
