#pragma once

#include <QKeySequence>
#include <QMenu>
#include <functional>

namespace velmora {

/// A small menu. While it is open its key equivalents act, and those of its
/// window's actions.
class PopupMenu : public QMenu {
    Q_OBJECT
public:
    /// A menu of the window of `opener`, of which it knows no more; none: of no window.
    explicit PopupMenu(QWidget* opener = nullptr);

    /// Appends an item that shows `title` literally, and `keyEquivalent` unless it is empty.
    /// `action` runs once the menu has closed.
    QAction*
    addItem(const QString& title, const QKeySequence& keyEquivalent, std::function<void()> action);

    /// Opens with the first item's top left at `point` (global, top-left origin), moved as far as
    /// needed to stay on the screen. Returns at once.
    void popUp(const QPoint& point);

    /// Sees each key press that reaches an open menu first; true means that it was dealt with.
    using KeyFilter = std::function<bool(const QKeyEvent&)>;
    /// Sets the filter of all menus. While a menu is open it holds the keyboard, and with it what
    /// global hot keys would get.
    static void setKeyFilter(KeyFilter filter);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velmora
