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
    for (const int count : {0, 1, 20, 21, 2000}) {
        AppListModel model({});
        model.setApps(numbered(count));
        EXPECT_EQ(model.rowCount(), std::min(count, 21));
        EXPECT_EQ(names(model).contains(u"(all)"_s), count > 20) << count;
        model.showAllApps();
        EXPECT_EQ(model.rowCount(), count);
        EXPECT_FALSE(names(model).contains(u"(all)"_s)) << count;
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
    EXPECT_EQ(model.rowCount(), 30);
}

TEST(AppListModel, EveryCopyOfTheChoiceIsMarked) {
    const AppListModel model(u"org.b"_s);
    for (const QString& id : {u"org.b"_s, u"org.B"_s, u"org.bb"_s})
        EXPECT_EQ(model.isSelected({u"B"_s, id, {}}), id == u"org.b"_s);
}

} // namespace
