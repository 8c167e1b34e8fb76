#include "viewkit/ToolTip.h"

#include <QHelpEvent>
#include <QTextBoundaryFinder>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace velmora::ToolTip {
namespace {

constexpr qsizetype lineLength = 60;
constexpr qsizetype maximumLength = 1000;

/// Where the line that starts at `start` ends: after a break opportunity, else between characters.
qsizetype lineEnd(const QString& text, qsizetype start) {
    const qsizetype limit = start + lineLength;
    if (limit >= text.size())
        return text.size();
    for (const auto type : {QTextBoundaryFinder::Line, QTextBoundaryFinder::Grapheme}) {
        QTextBoundaryFinder finder(type, text);
        finder.setPosition(limit);
        if (!finder.isAtBoundary())
            finder.toPreviousBoundary();
        if (finder.position() > start)
            return finder.position();
    }
    return limit;
}

} // namespace

QString markup(const QString& text) {
    const bool cut = text.size() > maximumLength;
    const QString shown = cut ? text.first(maximumLength) + u'…' : text;
    QStringList lines;
    for (const QString& paragraph : shown.split(u'\n')) {
        qsizetype start = 0;
        do {
            const qsizetype end = lineEnd(paragraph, start);
            lines += paragraph.sliced(start, end - start).toHtmlEscaped();
            start = end;
        } while (start < paragraph.size());
    }
    return u"<p style='white-space:pre'>"_s + lines.join(u"<br/>"_s) + u"</p>"_s;
}

void show(const QHelpEvent& event, QWidget* view, const QString& text) {
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), markup(text), view);
}

} // namespace velmora::ToolTip
