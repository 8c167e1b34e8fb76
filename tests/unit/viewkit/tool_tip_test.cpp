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

TEST(ToolTip, ShowsAnyTextInShortLines) {
    for (const QString& text :
         {u"<b>bold</b> &amp; <img src=\"x\">"_s, u"two  spaces"_s, u"a\nb"_s, u"a\n\nb"_s})
        EXPECT_EQ(shown(text), text);
    // 59 letters, then characters of two code units each.
    const QString pairs = u"x"_s.repeated(59) + u"🚀"_s.repeated(70);
    for (const QString& text : {u"word "_s.repeated(60), pairs}) {
        const QString lines = shown(text);
        EXPECT_EQ(QString(lines).remove(u'\n'), text) << "nothing is lost";
        for (const QString& line : lines.split(u'\n')) {
            EXPECT_LE(line.size(), 60);
            EXPECT_FALSE(line.front().isLowSurrogate() || line.back().isHighSurrogate());
        }
    }
    EXPECT_LT(shown(u"x"_s.repeated(100000)).size(), 1100);
}

} // namespace
} // namespace velmora
