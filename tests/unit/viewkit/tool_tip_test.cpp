#include "viewkit/ToolTip.h"

#include <QHelpEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>
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

TEST(ToolTip, BringsItsColourWhereNoStyleSheetHasOne) {
    QWidget plain;
    QWidget styled;
    styled.setStyleSheet(u"QToolTip { color: red; }"_s);
    for (QWidget* view : {&plain, &styled}) {
        view->ensurePolished();
        const QHelpEvent request(QEvent::ToolTip, {}, {});
        ToolTip::show(request, view, u"text"_s);
        QTextDocument document;
        document.setHtml(QToolTip::text());
        EXPECT_EQ(document.toPlainText(), u"text"_s);
        const QTextCharFormat format = document.begin().begin().fragment().charFormat();
        EXPECT_EQ(format.hasProperty(QTextFormat::ForegroundBrush), view == &plain);
        QToolTip::hideText();
    }
}

} // namespace
} // namespace velmora
