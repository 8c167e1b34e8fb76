#pragma once

class QString;
class QWidget;

namespace velmora {

/// The head of a chooser: its title, and a button at the trailing edge that dismisses the sheet
/// that shows `content`.
QWidget* sheetHeader(const QString& title, QWidget& content);

/// A thin horizontal line.
QWidget* divider();

} // namespace velmora
