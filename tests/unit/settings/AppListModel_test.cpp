// The rows of the application chooser: the first-20 rule, the search, and the marks.

#include "settings/applications/AppListModel.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(AppListModel, OffersAllFromTheTwentyFirstAndSearchesThroughAll) {
    for (const int count : {0, 20, 21, 2000}) {
        SCOPED_TRACE(count);
        QList<AppInfo> apps;
        for (int i = 0; i < count; ++i)
            apps.append(AppInfo(u"App %1"_s.arg(i), u"org.app%1"_s.arg(i), {}));
        AppListModel model({});
        model.setApps(SearchableApps(apps));
        for (const QString& search : {u"APP 20"_s, u"ORG.app20"_s, QString()}) {
            model.setSearchText(search); // 20 and 200 to 209, in the list's order
            const int found = count <= 20 ? 0 : count == 21 ? 1 : 11;
            EXPECT_EQ(model.rowCount(), search.isEmpty() ? qMin(count, 21) : found);
            const QString first = search.isEmpty() ? u"App 0"_s : u"App 20"_s;
            EXPECT_TRUE(found == 0 || model.index(0).data() == first);
        }
        EXPECT_TRUE(count <= 20 || !model.app(model.index(20))) << "the offer of all";
        model.showAllApps();
        EXPECT_EQ(model.rowCount(), count);
        EXPECT_TRUE(count == 0 || model.app(model.index(count - 1)));
    }
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
