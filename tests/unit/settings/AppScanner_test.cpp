// The scan for applications on a temporary tree: what counts as one, and the order of the list.

#include "settings/AppScanner.h"
#include "settings/SearchText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using testing::ElementsAre;

namespace {

class AppScannerTest : public testing::Test {
protected:
    void write(const QString& path, const QByteArray& text) {
        const QString full = root_.filePath(path);
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    /// An application bundle; an empty name or identifier is left out of its dictionary.
    void bundle(
        const QString& path, const QByteArray& name, const QByteArray& identifier,
        const QString& dictionary = u"/Contents/Info.plist"_s) {
        QByteArray text = "<plist><dict>";
        if (!name.isEmpty())
            text += "<key>CFBundleName</key><string>" + name + "</string>";
        if (!identifier.isEmpty())
            text += "<key>CFBundleIdentifier</key><string>" + identifier + "</string>";
        write(path + dictionary, text + "</dict></plist>");
    }

    AppScanner scanner(QList<InstalledApplication> installed = {}) const {
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
    bundle(u"Applications/Alpha.app/Contents/Helpers/Inner.app"_s, "no", "org.no1");
    bundle(u"Applications/.hidden.app"_s, "no", "org.no3");
    bundle(u"Applications/.hidden/Inner.app"_s, "no", "org.no4");
    bundle(u"Applications/Tool.plugin"_s, "no", "org.no5");
    bundle(u"Applications/Tool.plugin/Contents/Inner.app"_s, "no", "org.no6");
    bundle(u"Applications/NoName.app"_s, "", "org.no8");
    bundle(u"Applications/NoIdentifier.app"_s, "no", "");
    write(u"Applications/File.app"_s, "text");
    bundle(u"elsewhere/Linked.app"_s, "Linked", "org.linked");
    bundle(u"elsewhere/folder/Unlinked.app"_s, "no", "org.no10");
    QFile::link(
        root_.filePath(u"elsewhere/Linked.app"_s), root_.filePath(u"Applications/Linked.app"_s));
    QFile::link(root_.filePath(u"elsewhere/folder"_s), root_.filePath(u"Applications/folder"_s));
    QFile::link(root_.path(), root_.filePath(u"Applications/loop"_s));

    const QList<AppInfo> apps = scanner().getInstalledApps();
    EXPECT_THAT(names(apps), ElementsAre(u"alpha"_s, u"Beta"_s, u"Flat"_s, u"Linked"_s));
    EXPECT_EQ(apps[1].bundleId, u"org.beta"_s);
    EXPECT_EQ(apps[1].path, root_.filePath(u"Applications/Utilities/Deep/Beta.app"_s));
}

TEST_F(AppScannerTest, KeepsDuplicatesInTheOrderFound) {
    bundle(u"home/Twin.app"_s, "twin", "org.twin");
    bundle(u"Applications/Twin.app"_s, "Twin", "org.twin");
    const QList<AppInfo> apps =
        scanner({{u"twin"_s, u"Twin"_s, u"/t.desktop"_s, u"t"_s}}).getInstalledApps();
    EXPECT_THAT(names(apps), ElementsAre(u"Twin"_s, u"twin"_s, u"Twin"_s));
    EXPECT_EQ(apps[0], apps[1]);
    EXPECT_NE(apps[0].id, apps[1].id);
    EXPECT_FALSE(apps[0] == apps[2]);
    EXPECT_EQ(apps[2].path, u"/t.desktop"_s);
}

TEST_F(AppScannerTest, FinderComesOnce) {
    bundle(u"Finder.app"_s, "Finder", "com.apple.finder");
    EXPECT_THAT(names(scanner().getInstalledApps()), ElementsAre(u"Finder"_s));
    bundle(u"home/Other.app"_s, "Other finder", "com.apple.finder");
    EXPECT_THAT(names(scanner().getInstalledApps()), ElementsAre(u"Other finder"_s));
}

TEST_F(AppScannerTest, CommonAppsKeepTheOrderOfAll) {
    const QList<InstalledApplication> installed{
        {u"org.mozilla.firefox"_s, u"Firefox"_s, {}, {}},
        {u"com.apple.safari"_s, u"almost"_s, {}, {}},
        {u"com.apple.Safari"_s, u"Safari"_s, {}, {}},
        {u"com.apple.iCal"_s, u"Calendar"_s, {}, {}},
    };
    EXPECT_THAT(
        names(scanner(installed).getCommonApps()),
        ElementsAre(u"Calendar"_s, u"Firefox"_s, u"Safari"_s));
}

TEST_F(AppScannerTest, OrdersAsTheLanguageDoes) {
    const struct {
        QLocale locale;
        QStringList ordered;
    } cases[] = {
        {QLocale::C, {u"alpha"_s, u"Ärger"_s, u"Beta"_s, u"zeta"_s}},
        {QLocale(QLocale::Swedish), {u"alpha"_s, u"Beta"_s, u"zeta"_s, u"Ärger"_s}},
    };
    QList<InstalledApplication> installed;
    for (const QString& name : {u"zeta"_s, u"Ärger"_s, u"Beta"_s, u"alpha"_s})
        installed.append({name, name, {}, {}});
    const QLocale before;
    for (const auto& c : cases) {
        QLocale::setDefault(c.locale);
        EXPECT_EQ(names(scanner(installed).getInstalledApps()), c.ordered)
            << c.locale.name().toStdString();
    }
    QLocale::setDefault(before);
}

TEST(SearchText, ContainmentIgnoresCaseOnly) {
    const struct {
        QString text;
        QString search;
        bool contains;
    } cases[] = {
        {u"com.apple.Safari"_s, u"safari"_s, true},
        {u"Ärger"_s, u"ÄR"_s, true},
        {u"Ärger"_s, u"a\u0308rger"_s, true}, // decomposed
        {u"Ärger"_s, u"arger"_s, false},
        {u"Straße"_s, u"STRASSE"_s, true},
        {u"STRAẞE"_s, u"straße"_s, true},
        {u"İstanbul"_s, u"istanbul"_s, true},
        {u"Işık"_s, u"ışık"_s, true},
        {u"Ｆｕｌｌ Ｗｉｄｔｈ"_s, u"full width"_s, true},
        {u"ﾒﾓ帳"_s, u"メモ"_s, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(foldedForSearch(c.text).contains(foldedForSearch(c.search)), c.contains)
            << c.text.toStdString() << " / " << c.search.toStdString();
}

} // namespace
