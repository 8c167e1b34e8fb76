// Property lists in both forms, whole and damaged.

#include "settings/applications/PropertyList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using Strings = QHash<QString, QString>;

/// A binary list of {"CFBundleName": "Ä", "n": true, "CFBundleIdentifier": "org.x"}.
const QByteArray binaryList =
    "bplist00" + QByteArray::fromHex("d30102030405065c") + "CFBundleName" +
    QByteArray::fromHex("516e5f1012") + "CFBundleIdentifier" +
    QByteArray::fromHex("6100c409556f72672e78080f1c1e3336370000000000000101"
                        "00000000000000070000000000000000000000000000003d");

const QStringList wanted{u"CFBundleIdentifier"_s, u"CFBundleName"_s};

TEST(PropertyList, ReadsTheWantedTopLevelStrings) {
    const Strings expected{{u"CFBundleName"_s, u"Ä"_s}, {u"CFBundleIdentifier"_s, u"org.x"_s}};
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist SYSTEM "PropertyList-1.0.dtd">
<plist version="1.0"><dict>
  <key>Types</key><array><dict><key>CFBundleName</key><string>inner</string></dict></array>
  <key>CFBundleName</key><string>Ä</string>
  <key>CFBundleName</key><string>again</string><key>other</key><string>text</string>
  <key>n</key><true/>
  <key>CFBundleIdentifier</key><string>org.x</string>
</dict></plist>)";
    EXPECT_EQ(propertyListStrings(xml, wanted), expected);
    EXPECT_EQ(propertyListStrings(binaryList, wanted), expected);
    EXPECT_EQ(propertyListStrings(binaryList, {u"n"_s}), Strings()) << "no string";
    for (const char* text :
         {"", "x", "<plist/>", "<plist><array/></plist>", "<other><dict/></other>",
          "<plist><dict><key>CFBundleName</key><string>b</string>",
          "<plist><dict><key><b/></key></dict></plist>"})
        EXPECT_EQ(propertyListStrings(text, wanted), Strings()) << text;
}

// Run with the sanitizers: whatever a byte says, nothing outside the data is read.
TEST(PropertyList, DamagedBinaryIsHarmless) {
    for (qsizetype i = 0; i < binaryList.size(); ++i) {
        for (const int value : {0x00, 0x01, 0x5f, 0x6f, 0x7f, 0xdf, 0xff}) {
            QByteArray damaged = binaryList;
            damaged[i] = char(value);
            propertyListStrings(damaged, wanted);
        }
        EXPECT_EQ(propertyListStrings(binaryList.left(i), wanted), Strings());
    }
}

} // namespace
