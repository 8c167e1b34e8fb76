#include "viewkit/ToolTip.h"

#include <QTextDocument>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// What a reader of the tool tip sees.
QString shown(const QString& text) {
    QTextDocument document;
    document.setHtml(ToolTip::markup(text));
    return document.toPlainText();
}

TEST(ToolTip, ShowsMarkupLiterally) {
    for (const QString& text :
         {u"<b>bold</b> &amp; <img src=\"x\">"_s, u"two  spaces"_s, u"a\nb"_s, u"a\n\nb"_s})
        EXPECT_EQ(shown(text), text);
}

TEST(ToolTip, WrapsLongLinesAndCutsEndlessOnes) {
    const QString words = shown(u"word "_s.repeated(60));
    for (const QString& line : words.split(u'\n'))
        EXPECT_LE(line.size(), 60);
    EXPECT_EQ(QString(words).remove(u'\n'), u"word "_s.repeated(60)) << "nothing is lost";

    const QString endless = shown(u"x"_s.repeated(100000));
    EXPECT_LT(endless.size(), 1100);
    EXPECT_TRUE(endless.endsWith(u'…'));
    EXPECT_EQ(endless.section(u'\n', 0, 0), u"x"_s.repeated(60));
}

TEST(ToolTip, NeverCutsACharacterInTwo) {
    // 59 letters, then characters of two code units each.
    const QString text = u"x"_s.repeated(59) + u"🚀🚀🚀"_s;
    for (const QString& line : shown(text).split(u'\n')) {
        EXPECT_FALSE(line.front().isLowSurrogate());
        EXPECT_FALSE(line.back().isHighSurrogate());
    }
}

} // namespace
} // namespace velmora
