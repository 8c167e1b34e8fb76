#include "actions/KeyNames.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(KeyNames, FindsCodesByName) {
    const QString named =
        u"Return=36 ←=123 →=124 ↓=125 ↑=126 PageUp=116 End=119 A=0 a=0 z=6 0=29 ı=34"_s;
    for (const QString& key : named.split(u' '))
        EXPECT_EQ(KeyNames::keyCode(key.section(u'=', 0, 0)), key.section(u'=', 1).toUShort());
    const QString unknown = u"return|RETURN|Left|F5|ß|ﬁ|é|a\u0301|-|AB|😀| a|"_s;
    for (const QString& key : unknown.split(u'|'))
        EXPECT_FALSE(KeyNames::keyCode(key)) << qPrintable(key);
    std::set<KeyCode> codes;
    for (const QChar character : u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s)
        codes.insert(KeyNames::keyCode(character).value());
    EXPECT_EQ(codes.size(), 36U);
    int positions = 0; // the others by the layout
    for (int code = 0; code < 0x10000; ++code)
        if (const auto name = KeyNames::nameOfPosition(static_cast<KeyCode>(code))) {
            ++positions;
            EXPECT_EQ(KeyNames::keyCode(*name), code) << qPrintable(*name);
        }
    EXPECT_EQ(positions, 23);
}
