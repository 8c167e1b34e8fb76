// The rows of the application chooser: the first-20 rule, the search, and the marks.

#include "settings/applications/AppListModel.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(AppListModel, OffersAllFromTheTwentyFirstAndSearchesThroughAll) {
    for (const int count : {0, 1, 20, 21, 2000}) {
        SCOPED_TRACE(count);
        QList<AppInfo> apps;
        for (int i = 0; i < count; ++i)
            apps.append(AppInfo(u"App %1"_s.arg(i), u"org.app%1"_s.arg(i), {}));
        AppListModel model({});
        model.setApps(SearchableApps(apps));
        const auto names = [&] {
            QStringList result;
            for (int row = 0; row < model.rowCount(); ++row) {
                const AppInfo* app = model.app(model.index(row));
                result.append(app ? app->name : u"(all)"_s);
            }
            return result;
        };
        EXPECT_EQ(model.rowCount(), std::min(count, 21));
        EXPECT_EQ(names().indexOf(u"(all)"_s), count > 20 ? 20 : -1);
        for (const QString& search : {u"APP 20"_s, u"ORG.app20"_s}) {
            model.setSearchText(search); // 20 and 200 to 209, in the list's order
            EXPECT_EQ(model.rowCount(), count <= 20 ? 0 : count == 21 ? 1 : 11);
            EXPECT_EQ(names().value(0), count <= 20 ? QString() : u"App 20"_s);
        }
        model.setSearchText({});
        EXPECT_EQ(model.rowCount(), std::min(count, 21));
        model.showAllApps();
        EXPECT_EQ(model.rowCount(), count);
        EXPECT_FALSE(names().contains(u"(all)"_s));
    }
}

TEST(AppListModel, EveryCopyOfTheChoiceIsMarked) {
    const AppListModel model(u"org.b"_s);
    for (const QString& id : {u"org.b"_s, u"org.B"_s, u"org.bb"_s})
        EXPECT_EQ(model.isSelected({u"B"_s, id, {}}), id == u"org.b"_s);
}

TEST(AppListModel, TheSearchIgnoresCaseOnly) {
    const QString pairs = u"com.apple.Safari=safari Ärger=ÄR Ärger=a\u0308rger STRAẞE=strasse "
                          "İstanbul=istanbul Işık=ışık Ｗｉｄｔｈ=width ﾒﾓ帳=メモ"_s;
    const auto contains = [](const QString& text, const QString& search) {
        return foldedForSearch(text).contains(foldedForSearch(search));
    };
    for (const QString& pair : pairs.split(u' '))
        EXPECT_TRUE(contains(pair.section(u'=', 0, 0), pair.section(u'=', 1))) << qPrintable(pair);
    EXPECT_FALSE(contains(u"Ärger"_s, u"arger"_s));
}
