// Listing folders of desktop entries on a temporary tree.

#include "platform/freedesktop/DesktopEntryListing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using testing::UnorderedElementsAre;

namespace {

QByteArray entry(const char* name, const char* more = "") {
    return QByteArray("[Desktop Entry]\nType=Application\nName=") + name + '\n' + more + '\n';
}

class DesktopEntryListingTest : public testing::Test {
protected:
    void write(const QString& path, const QByteArray& text) {
        const QString full = root_.filePath(path);
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void link(const QString& target, const QString& path) {
        ASSERT_TRUE(QFile::link(target, root_.filePath(path)));
    }

    /// "identifier=name" of each.
    QStringList list() const {
        QStringList result;
        for (const InstalledApplication& app : listing().applications())
            result.append(app.identifier + u'=' + app.name);
        return result;
    }

    DesktopEntryListing listing() const {
        return {
            .folders =
                {root_.filePath(u"user"_s), root_.filePath(u"missing"_s),
                 root_.filePath(u"system"_s)},
            .languages = {},
            .desktops = {u"XFCE"_s},
            .searchPath = {root_.filePath(u"bin"_s)}};
    }

    QTemporaryDir root_;
};

TEST_F(DesktopEntryListingTest, TheUsersEntryHidesTheSystems) {
    write(u"system/a.desktop"_s, entry("A of the system"));
    write(u"system/b.desktop"_s, entry("B", "Icon=/pictures/b.png"));
    write(u"system/c.desktop"_s, entry("C"));
    write(u"system/d.desktop"_s, entry("D"));
    write(u"system/e.desktop"_s, entry("E"));
    write(u"user/a.desktop"_s, entry("A of the user"));
    write(u"user/c.desktop"_s, entry("C", "Hidden=true"));
    write(u"user/d.desktop"_s, "broken");
    link(u"/dev/null"_s, u"user/e.desktop"_s);
    EXPECT_THAT(list(), UnorderedElementsAre(u"a=A of the user"_s, u"b=B"_s));
    for (const InstalledApplication& app : listing().applications()) {
        if (app.identifier == u"b"_s) {
            EXPECT_EQ(app.location, root_.filePath(u"system/b.desktop"_s));
            EXPECT_EQ(app.icon, u"/pictures/b.png"_s);
        }
    }
}

TEST_F(DesktopEntryListingTest, SubFoldersJoinTheIdentifier) {
    write(u"user/kde/net/mail.desktop"_s, entry("Mail"));
    write(u"system/kde-net-mail.desktop"_s, entry("Hidden by the user's"));
    write(u"system/kde/files.desktop"_s, entry("Files"));
    EXPECT_THAT(list(), UnorderedElementsAre(u"kde-net-mail=Mail"_s, u"kde-files=Files"_s));
}

TEST_F(DesktopEntryListingTest, LeavesOutWhatIsNotToBeShown) {
    write(u"bin/there"_s, "");
    write(u"bin/notprogram"_s, "");
    QFile::setPermissions(root_.filePath(u"bin/there"_s), QFile::ReadOwner | QFile::ExeOwner);
    QDir(root_.path()).mkpath(u"bin/folder"_s);
    const QByteArray absolute = "TryExec=" + root_.filePath(u"bin/there"_s).toUtf8();
    write(u"user/shown1.desktop"_s, entry("1", "TryExec=there"));
    write(u"user/shown2.desktop"_s, entry("2", absolute));
    write(u"user/shown3.desktop"_s, entry("3", "OnlyShowIn=XFCE;"));
    write(u"user/no1.desktop"_s, entry("no", "NoDisplay=true"));
    write(u"user/no2.desktop"_s, entry("no", "Hidden=1"));
    write(u"user/no3.desktop"_s, entry("no", "OnlyShowIn=KDE;"));
    write(u"user/no5.desktop"_s, entry("no", "TryExec=missing"));
    write(u"user/no6.desktop"_s, entry("no", "TryExec=notprogram"));
    write(u"user/no7.desktop"_s, entry("no", "TryExec=folder"));
    write(u"user/no8.desktop.bak"_s, entry("no"));
    EXPECT_THAT(list(), UnorderedElementsAre(u"shown1=1"_s, u"shown2=2"_s, u"shown3=3"_s));
}

TEST_F(DesktopEntryListingTest, SurvivesWhatFoldersCanHold) {
    write(u"user/good.desktop"_s, entry("Good"));
    link(root_.filePath(u"user/good.desktop"_s), u"user/linked.desktop"_s);
    link(root_.filePath(u"user"_s), u"user/loop"_s);
    link(u"nowhere"_s, u"user/dangling.desktop"_s);
    link(u"self.desktop"_s, u"user/self.desktop"_s);
    write(u"user/huge.desktop"_s, entry("Huge") + QByteArray(2 * 1024 * 1024, '#'));
    write(u"user/folder.desktop/x"_s, entry("x"));
    write(u"user/binary.desktop"_s, QByteArray("\0\xff[Desktop Entry]\nName=\xff\n", 24));
    const QByteArray pipe = QFile::encodeName(root_.filePath(u"user/pipe.desktop"_s));
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    EXPECT_THAT(list(), UnorderedElementsAre(u"good=Good"_s, u"linked=Good"_s));
}

} // namespace
