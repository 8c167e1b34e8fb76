// The rows of the application chooser: the first-20 rule, the search, and the marks.

#include "settings/AppListModel.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

SearchableApps numbered(int count) {
    QList<AppInfo> apps;
    for (int i = 0; i < count; ++i)
        apps.append(AppInfo(u"App %1"_s.arg(i), u"org.app%1"_s.arg(i), {}));
    return SearchableApps(apps);
}

QStringList names(const AppListModel& model) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        const AppInfo* app = model.app(model.index(row));
        result.append(app ? app->name : u"(all)"_s);
    }
    return result;
}

TEST(AppListModel, OffersAllFromTheTwentyFirst) {
    const struct {
        int count;
        int rows;
        bool offered;
    } cases[] = {{0, 0, false}, {1, 1, false}, {20, 20, false}, {21, 21, true}, {2000, 21, true}};
    for (const auto& c : cases) {
        AppListModel model({});
        model.setApps(numbered(c.count));
        EXPECT_EQ(model.rowCount(), c.rows) << c.count;
        EXPECT_EQ(names(model).contains(u"(all)"_s), c.offered) << c.count;
        model.showAllApps();
        EXPECT_EQ(model.rowCount(), c.count);
        EXPECT_FALSE(names(model).contains(u"(all)"_s)) << c.count;
    }
}

TEST(AppListModel, SearchLooksThroughAllAndLeavesTheRuleAsItWas) {
    AppListModel model({});
    model.setApps(numbered(30));
    model.setSearchText(u"APP 2"_s);
    EXPECT_EQ(model.rowCount(), 11); // 2 and 20 to 29, in the list's order
    EXPECT_EQ(names(model).first(), u"App 2"_s);
    EXPECT_EQ(names(model).last(), u"App 29"_s);
    model.setSearchText(u"org.app29"_s);
    EXPECT_THAT(names(model), testing::ElementsAre(u"App 29"_s));
    model.setSearchText({});
    EXPECT_EQ(model.rowCount(), 21);
    model.showAllApps();
    model.setSearchText(u"nothing"_s);
    EXPECT_EQ(model.rowCount(), 0);
    model.setSearchText({});
    EXPECT_EQ(model.rowCount(), 30);
}

TEST(AppListModel, EveryCopyOfTheChoiceIsMarked) {
    AppListModel model(u"org.b"_s);
    model.setApps(SearchableApps(
        {{u"B"_s, u"org.b"_s, u"/1"_s},
         {u"B"_s, u"org.b"_s, u"/2"_s},
         {u"C"_s, u"org.B"_s, u"/3"_s}}));
    QList<bool> marks;
    for (int row = 0; row < model.rowCount(); ++row)
        marks.append(model.isSelected(*model.app(model.index(row))));
    EXPECT_THAT(marks, testing::ElementsAre(true, true, false));
}

} // namespace
