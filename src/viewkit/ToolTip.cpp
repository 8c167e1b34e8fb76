#include "viewkit/ToolTip.h"

#include "viewkit/Theme.h"

#include <QHelpEvent>
#include <QPalette>
#include <QTextBoundaryFinder>
#include <QToolTip>
#include <QWidget>

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

/// The look of all tool tips, which belongs to the application: set on the first one.
void applyLook() {
    static const bool once [[maybe_unused]] = [] {
        QPalette palette = QToolTip::palette();
        palette.setColor(QPalette::ToolTipBase, QColor(0x26, 0x26, 0x2b));
        // The colour of the frame; the text brings its own.
        palette.setColor(QPalette::ToolTipText, QColor(0x55, 0x55, 0x5d));
        QToolTip::setPalette(palette);
        QToolTip::setFont(Theme::systemFont(12));
        return true;
    }();
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
    applyLook();
    if (text.isEmpty())
        QToolTip::hideText();
    else if (view->testAttribute(Qt::WA_StyleSheet))
        QToolTip::showText(event.globalPos(), markup(text), view);
    else
        QToolTip::showText(
            event.globalPos(), u"<div style='color:#f2f2f4'>"_s + markup(text) + u"</div>"_s, view);
}

} // namespace velmora::ToolTip
