// Property lists in both forms, whole and damaged.

#include "settings/PropertyList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using Strings = QHash<QString, QString>;

/// A binary list of {"CFBundleName": "Ä", "n": true, "CFBundleIdentifier": "org.x"}.
QByteArray binaryList() {
    QByteArray data = "bplist00";
    QByteArray offsets;
    const auto add = [&](const QByteArray& object) {
        offsets += char(data.size());
        data += object;
    };
    add(QByteArray("\xd3\x01\x02\x03\x04\x05\x06", 7)); // three keys, three values
    add(QByteArray("\x5c"
                   "CFBundleName"));
    add(QByteArray("\x51n"));
    add(QByteArray("\x5f\x10\x12"
                   "CFBundleIdentifier"));
    add(QByteArray("\x61\x00\xc4", 3));
    add(QByteArray("\x09"));
    add(QByteArray("\x55org.x"));
    const char table = char(data.size());
    data += offsets;
    data += QByteArray(6, '\0') + '\x01' + '\x01';
    data += QByteArray(7, '\0') + '\x07' + QByteArray(8, '\0') + QByteArray(7, '\0') + table;
    return data;
}

TEST(PropertyList, ReadsTopLevelStrings) {
    const Strings expected{{u"CFBundleName"_s, u"Ä"_s}, {u"CFBundleIdentifier"_s, u"org.x"_s}};
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
  <key>CFBundleName</key><string>Ä</string>
  <key>Types</key><array><dict><key>CFBundleName</key><string>inner</string></dict></array>
  <key>n</key><true/>
  <key>CFBundleIdentifier</key><string>org.x</string>
</dict></plist>)";
    EXPECT_EQ(propertyListStrings(xml), expected);
    EXPECT_EQ(propertyListStrings(binaryList()), expected);
}

TEST(PropertyList, DamagedXmlGivesNothing) {
    for (const char* text :
         {"", "x", "<plist/>", "<plist><array/></plist>", "<other><dict/></other>",
          "<plist><dict><key>a</key><string>b</string>",
          "<plist><dict><key><b/></key></dict></plist>"})
        EXPECT_EQ(propertyListStrings(text), Strings()) << text;
}

// Run with the sanitizers: whatever a byte says, nothing outside the data is read.
TEST(PropertyList, DamagedBinaryIsHarmless) {
    const QByteArray whole = binaryList();
    for (qsizetype i = 0; i < whole.size(); ++i) {
        for (const int value : {0x00, 0x01, 0x5f, 0x6f, 0x7f, 0xdf, 0xff}) {
            QByteArray damaged = whole;
            damaged[i] = char(value);
            propertyListStrings(damaged);
        }
        propertyListStrings(whole.left(i));
    }
    EXPECT_EQ(propertyListStrings("bplist00"), Strings());
}

} // namespace
