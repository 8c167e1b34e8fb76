// The scan for applications on a temporary tree: what counts as one, and the order of the list.

#include "settings/applications/AppScanner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using testing::ElementsAre;

namespace {

class AppScannerTest : public testing::Test {
protected:
    /// An application bundle; an empty name or identifier is left out of its dictionary.
    void bundle(
        const QString& path, const QByteArray& name, const QByteArray& identifier,
        const QString& dictionary = u"/Contents/Info.plist"_s) {
        const QString file = root_.filePath(path + dictionary);
        QDir().mkpath(QFileInfo(file).path());
        QFile plist(file);
        ASSERT_TRUE(plist.open(QIODevice::WriteOnly));
        plist.write("<plist><dict>");
        if (!name.isEmpty())
            plist.write("<key>CFBundleName</key><string>" + name + "</string>");
        if (!identifier.isEmpty())
            plist.write("<key>CFBundleIdentifier</key><string>" + identifier + "</string>");
        plist.write("</dict></plist>");
    }

    AppScanner scanner(const QList<InstalledApplication>& installed = {}) const {
        return AppScanner(
            {.folders =
                 {root_.filePath(u"Applications"_s), root_.filePath(u"missing"_s),
                  root_.filePath(u"home"_s)},
             .finder = root_.filePath(u"Finder.app"_s),
             .installed = [installed] { return installed; }});
    }

    static QStringList names(const QList<AppInfo>& apps) {
        QStringList result;
        for (const AppInfo& app : apps)
            result.append(app.name);
        return result;
    }

    QTemporaryDir root_;
};

TEST_F(AppScannerTest, FindsApplicationsInOrdinaryFolders) {
    bundle(u"Applications/Alpha.app"_s, "alpha", "org.alpha");
    bundle(u"Applications/Utilities/Deep/Beta.app"_s, "Beta", "org.beta");
    bundle(u"Applications/Flat.app"_s, "Flat", "org.flat", u"/Info.plist"_s);
    bundle(u"elsewhere/Linked.app"_s, "Linked", "org.linked");
    for (const QString& path :
         {u"Applications/Alpha.app/Contents/Inner.app"_s, u"Applications/.hidden.app"_s,
          u"Applications/.hidden/Inner.app"_s, u"Applications/Tool.plugin"_s,
          u"Applications/Tool.plugin/Contents/Inner.app"_s, u"elsewhere/folder/Unlinked.app"_s})
        bundle(path, "no", "org.no");
    bundle(u"Applications/NoName.app"_s, "", "org.no");
    bundle(u"Applications/NoIdentifier.app"_s, "no", "");
    for (const auto& [target, path] :
         {std::pair(u"elsewhere/Linked.app"_s, u"Applications/Linked.app"_s),
          {u"elsewhere/folder"_s, u"Applications/folder"_s},
          {u""_s, u"Applications/loop"_s}})
        ASSERT_TRUE(QFile::link(root_.filePath(target), root_.filePath(path)));
    QDir(root_.path()).mkpath(u"Applications/Pipe.app"_s);
    const QString pipe = root_.filePath(u"Applications/Pipe.app/Info.plist"_s);
    ASSERT_EQ(::mkfifo(pipe.toUtf8().constData(), 0600), 0);

    const QList<AppInfo> apps = scanner().getInstalledApps();
    EXPECT_THAT(names(apps), ElementsAre(u"alpha"_s, u"Beta"_s, u"Flat"_s, u"Linked"_s));
    EXPECT_EQ(apps[1].bundleId, u"org.beta"_s);
    EXPECT_EQ(apps[1].path, root_.filePath(u"Applications/Utilities/Deep/Beta.app"_s));
}

TEST_F(AppScannerTest, KeepsDuplicatesInTheOrderFoundAndFinderOnce) {
    bundle(u"Finder.app"_s, "Finder", "com.apple.finder");
    EXPECT_THAT(names(scanner().getInstalledApps()), ElementsAre(u"Finder"_s));
    bundle(u"home/Other.app"_s, "Other finder", "com.apple.finder");
    bundle(u"home/Twin.app"_s, "twin", "org.twin");
    bundle(u"Applications/Twin.app"_s, "Twin", "org.twin");
    const QList<AppInfo> apps =
        scanner({{u"twin"_s, u"Twin"_s, u"/t.desktop"_s, u"t"_s}}).getInstalledApps();
    EXPECT_THAT(names(apps), ElementsAre(u"Other finder"_s, u"Twin"_s, u"twin"_s, u"Twin"_s));
    EXPECT_TRUE(apps[1] == apps[2] && apps[1].id != apps[2].id && !(apps[1] == apps[3]));
}

} // namespace
