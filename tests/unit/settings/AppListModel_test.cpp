// The rows of the application chooser: the first-20 rule and the search.

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
