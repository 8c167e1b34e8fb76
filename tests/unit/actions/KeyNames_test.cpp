#include "actions/KeyNames.h"

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {
using Code = std::optional<KeyCode>;
}

TEST(KeyNames, FindsCodesByName) {
    const struct {
        QString name;
        Code code;
    } cases[] = {
        {u"Return"_s, 36},  {u"←"_s, 123},     {u"→"_s, 124},   {u"↓"_s, 125},      {u"↑"_s, 126},
        {u"PageUp"_s, 116}, {u"End"_s, 119},   {u"A"_s, 0},     {u"a"_s, 0},        {u"z"_s, 6},
        {u"0"_s, 29},       {u"6"_s, 22},      {u"ı"_s, 34}, // a letter whose upper case is I
        {u"return"_s, {}},  {u"RETURN"_s, {}}, {u"Left"_s, {}}, {u"F5"_s, {}},      {QString(), {}},
        {u"ß"_s, {}},       {u"ﬁ"_s, {}},      {u"é"_s, {}},    {u"a\u0301"_s, {}}, {u" a"_s, {}},
        {u"-"_s, {}},       {u"AB"_s, {}},     {u"😀"_s, {}},
    };
    for (const auto& [name, code] : cases)
        EXPECT_EQ(KeyNames::keyCode(name), code) << qPrintable(name);
}

TEST(KeyNames, EveryPositionNamesTheKeyThatHasItsCode) {
    int named = 0;
    for (int code = 0; code < 0x10000; ++code) {
        if (const auto name = KeyNames::nameOfPosition(static_cast<KeyCode>(code))) {
            ++named;
            EXPECT_EQ(KeyNames::keyCode(*name), Code(code)) << qPrintable(*name);
        }
    }
    EXPECT_EQ(named, 23);
    EXPECT_FALSE(KeyNames::nameOfPosition(0)) << "letters are named by the layout";
}

TEST(KeyNames, LettersAndDigitsHaveCodesOfTheirOwn) {
    std::set<KeyCode> codes;
    for (const QChar character : u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s)
        codes.insert(KeyNames::keyCode(character).value());
    EXPECT_EQ(codes.size(), 36U);
    EXPECT_EQ(*codes.rbegin(), 46); // M
}
