#include "foundation/UserDefaults.h"
#include "model/Preferences.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(HotKeyTest, OnlyAUsableOneIsKeptAndWhatIsNoneIsLeftAside) {
    const HotKey optionM;
    const HotKey controlF5{{u"Control"_s, u"Shift"_s}, 96, u"F5"_s};
    const struct {
        QByteArray stored;
        HotKey expected;
        bool isKept; ///< read as it is
    } cases[] = {
        {R"({"modifiers":["Control","Shift"],"keyCode":96,"key":"F5"})", controlF5, true},
        {R"({"modifiers":["Command"],"keyCode":49.0,"key":""})", {{u"Command"_s}, 49, {}}, true},
        {R"({"modifiers":[],"keyCode":46,"key":"M"})", optionM, false},
        {R"({"modifiers":["Shift"],"keyCode":46,"key":"M"})", optionM, false},
        {R"({"modifiers":["Hyper"],"keyCode":46,"key":"M"})", optionM, false},
        {R"({"modifiers":["Option"],"keyCode":65582,"key":"M"})", optionM, false},
        {R"({"modifiers":["Option"],"keyCode":-1,"key":"M"})", optionM, false},
        {R"({"modifiers":["Option"],"key":"M"})", optionM, false},
        {"Option+M", optionM, false},
    };
    for (const auto& [stored, expected, isKept] : cases) {
        SCOPED_TRACE(stored.constData());
        const QTemporaryDir folder;
        UserDefaults defaults(folder.path() + u"/velmora.conf"_s);
        Preferences preferences(defaults);
        defaults.setData(u"hotKey"_s, stored);
        EXPECT_EQ(preferences.hotKey(), expected);
        EXPECT_EQ(
            defaults.data(u"hotKey.unreadable"_s), isKept ? std::nullopt : std::optional(stored));
        int changes = 0;
        QObject::connect(&preferences, &Preferences::changed, &preferences, [&] { ++changes; });
        preferences.setHotKey({{}, 46, u"M"_s});
        preferences.setHotKey({{u"Shift"_s}, 96, u"F5"_s});
        preferences.setHotKey({{u"Option"_s}, 0xffff, u"?"_s});
        EXPECT_EQ(preferences.hotKey(), expected);
        preferences.setHotKey({{u"Option"_s}, 0, u"A"_s});
        preferences.setHotKey({{u"Option"_s}, 0, u"A"_s});
        EXPECT_EQ(preferences.hotKey().name(), u"Alt+A"_s);
        EXPECT_EQ(changes, 1);
    }
}

} // namespace
} // namespace velmora
