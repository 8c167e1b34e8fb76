#pragma once

class QAbstractItemView;
class QLabel;
class QScrollArea;
class QString;
class QWidget;

/// Small parts that windows, sheets and lists have alike.
namespace velmora {

/// A label in the headline font.
QLabel* headline(const QString& text);

/// The head of a chooser: its title, and a button called `close` at the trailing edge that
/// dismisses the sheet that shows `content`.
QWidget* sheetHeader(const QString& title, const QString& close, QWidget& content);

/// Scrolls `content` up and down, without a frame or a ground of its own, and makes it as wide as
/// there is room. `name` is what assistive programs call it.
QScrollArea* scrollArea(QWidget* content, const QString& name);

/// A thin horizontal line.
QWidget* divider();

/// Says `text` in the middle of a list without rows, in the secondary colour; nothing in one with
/// rows. For the list's own paintEvent.
void paintEmptyHint(QAbstractItemView& list, const QString& text);

} // namespace velmora
