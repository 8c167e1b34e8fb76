#include "foundation/IniText.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Judged by QSettings, whose form it is.
class IniTextTest : public testing::Test {
protected:
    /// A new file that holds `bytes`: of one file QSettings keeps what it knows.
    QString file(const QByteArray& bytes = {}) {
        QFile made(root_.filePath(QString::number(++files_)));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly) && made.write(bytes) == bytes.size());
        return made.fileName();
    }

    QVariantMap readByQSettings(const QByteArray& text) {
        const QSettings settings(file(text), QSettings::IniFormat);
        QVariantMap all;
        for (const QString& key : settings.allKeys())
            all.insert(key, settings.value(key));
        EXPECT_EQ(settings.status(), QSettings::NoError);
        return all;
    }

    const QTemporaryDir root_;
    int files_ = 0;
};

TEST_F(IniTextTest, WritesAndReadsBytesAsQSettingsDoes) {
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every.append(static_cast<char>(byte)).append("a\\x");
    const QString key = u"NSWindow Frame X"_s;
    for (const QByteArray& value :
         {""_ba, every, "\0"_ba, "\"a\", b; [c]=%1\r\n\\x41"_ba, "@ByteArray(x)"_ba,
          "スクショ 😀 שלום"_ba, QByteArray(1 << 20, '\xff')}) {
        IniText text;
        text.set(key.toLatin1(), IniText::written(value));
        EXPECT_EQ(IniText(text.text()).value(key.toLatin1()), value);
        EXPECT_EQ(readByQSettings(text.text()).value(key).toByteArray(), value);
        QFile other(file());
        QSettings(other.fileName(), QSettings::IniFormat).setValue(key, value);
        ASSERT_TRUE(other.open(QIODevice::ReadOnly));
        EXPECT_EQ(IniText(other.readAll()).value(key.toLatin1()), value);
    }
}

TEST_F(IniTextTest, ReadsWhatAHandEditedAndKeepsTheRestOfIt) {
    IniText text("\xEF\xBB\xBF"
                 "a=x\\qy\\zz\n; a note\nb=\"q\"  tail\\x20 ; another note\n"
                 "c=\\x41G\\x41\\x42\\101z\\\n d=\"a=\" \"b;\"\n NSWindow%20Frame = v \n"
                 "[General]\n e=1\r\n[ general ]\r\nf=@@x\nf=\"two\nlines\\\r\n\"\n\n"
                 "[other]\ne=3\nlist=a, \"b,c\"\npoint=@Point(1 2)");
    QVariantMap expected = readByQSettings(text.text());
    EXPECT_EQ(expected.size(), 9);
    for (const QString& key : {u"a"_s, u"b"_s, u"c"_s, u"NSWindow Frame"_s, u"e"_s, u"f"_s})
        EXPECT_EQ(text.value(key.toLatin1()), expected.value(key).toByteArray())
            << key.toStdString();
    EXPECT_FALSE(text.value("list"));
    for (const QString& key : {u"b"_s, u"e"_s, u"f"_s, u"new"_s}) {
        text.set(key.toLatin1(), IniText::written("n;"_ba));
        expected[key] = "n;"_ba;
        EXPECT_EQ(readByQSettings(text.text()), expected) << key.toStdString();
    }
    EXPECT_TRUE(text.text().startsWith("\xEF\xBB\xBF"
                                       "a=x\\qy\\zz\n; a note\n"));
    EXPECT_TRUE(text.text().contains("; another note\nc="));

    const QByteArray commented = "# no \"end\n[General]\n#e=2\n e=1\n";
    IniText byHand(commented);
    EXPECT_EQ(byHand.firstBadLine(), 0);
    EXPECT_EQ(byHand.value("e"), "1"_ba);
    EXPECT_EQ(byHand.text(), commented);
}

} // namespace
} // namespace velmora
