// Listing folders of desktop entries on a temporary tree.

#include "platform/freedesktop/DesktopEntryListing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(DesktopEntryListing, ListsWhatIsToBeShownAndNothingElse) {
    const QTemporaryDir root;
    const auto write = [&](const QString& path, const QByteArray& text) {
        QDir().mkpath(QFileInfo(root.filePath(path)).path());
        QFile file(root.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    };
    const auto entry = [&](const QString& path, const QByteArray& more = {}) {
        write(
            path + u".desktop"_s,
            "[Desktop Entry]\nType=Application\nName=" + path.toUtf8() + '\n' + more + '\n');
    };
    const auto link = [&](const QString& target, const QString& path) {
        ASSERT_TRUE(QFile::link(target, root.filePath(path)));
    };
    // The user's entry hides the system's, also when it is hidden or broken itself.
    for (const QString& name : u"a b c d e kde-net-mail"_s.split(u' '))
        entry(u"system/"_s + name, "Icon=/pictures/b.png");
    entry(u"user/a"_s);
    entry(u"user/c"_s, "Hidden=true");
    write(u"user/d.desktop"_s, "broken");
    link(u"/dev/null"_s, u"user/e.desktop"_s);
    // Sub-folders join the identifier.
    entry(u"user/kde/net/mail"_s);
    entry(u"system/kde/files"_s);
    // Shown, or not, for what they say.
    write(u"bin/there"_s, "");
    write(u"bin/notprogram"_s, "");
    QFile::setPermissions(root.filePath(u"bin/there"_s), QFile::ReadOwner | QFile::ExeOwner);
    QDir(root.path()).mkpath(u"bin/folder"_s);
    entry(u"user/shown1"_s, "TryExec=there");
    entry(u"user/shown2"_s, "TryExec=" + root.filePath(u"bin/there"_s).toUtf8());
    entry(u"user/shown3"_s, "OnlyShowIn=XFCE;");
    int number = 0;
    for (const char* line :
         {"NoDisplay=true", "Hidden=1", "OnlyShowIn=KDE;", "TryExec=missing", "TryExec=notprogram",
          "TryExec=folder"})
        entry(u"user/no%1"_s.arg(++number), line);
    // What folders can hold besides.
    link(root.filePath(u"user/a.desktop"_s), u"user/linked.desktop"_s);
    link(root.filePath(u"user"_s), u"user/loop"_s);
    link(u"nowhere"_s, u"user/dangling.desktop"_s);
    link(u"self.desktop"_s, u"user/self.desktop"_s);
    entry(u"user/huge"_s, QByteArray(2 * 1024 * 1024, '#'));
    entry(u"user/folder.desktop/x"_s);
    entry(u"user/backup.desktop.bak/x"_s, "Hidden=true");
    write(u"user/binary.desktop"_s, QByteArray("\0\xff[Desktop Entry]\nName=\xff\n", 24));
    const QByteArray pipe = QFile::encodeName(root.filePath(u"user/pipe.desktop"_s));
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);

    const DesktopEntryListing listing{
        .folders = {root.filePath(u"user"_s), root.filePath(u"none"_s), root.filePath(u"system"_s)},
        .languages = {},
        .desktops = {u"XFCE"_s},
        .searchPath = {root.filePath(u"bin"_s)}};
    QStringList found;
    for (const InstalledApplication& app : listing.applications()) {
        found.append(app.identifier + u'=' + app.name);
        if (app.identifier == u"b"_s) {
            EXPECT_EQ(app.location, root.filePath(u"system/b.desktop"_s));
            EXPECT_EQ(app.icon, u"/pictures/b.png"_s);
        }
    }
    EXPECT_THAT(
        found, testing::UnorderedElementsAre(
                   u"a=user/a"_s, u"b=system/b"_s, u"kde-net-mail=user/kde/net/mail"_s,
                   u"kde-files=system/kde/files"_s, u"shown1=user/shown1"_s,
                   u"shown2=user/shown2"_s, u"shown3=user/shown3"_s, u"linked=user/a"_s));
}
