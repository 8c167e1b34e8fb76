#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

/// Tool tips of plain text.
namespace velmora::ToolTip {

/// `text` for a tool tip that shows it literally: never read as markup, wrapped at about 60
/// characters (also inside a word), cut with an ellipsis after 1,000.
QString markup(const QString& text);

/// Answers a tool-tip request on `view` with `text`; hides the tool tip when it is empty.
void show(const QHelpEvent& event, QWidget* view, const QString& text);

} // namespace velmora::ToolTip
