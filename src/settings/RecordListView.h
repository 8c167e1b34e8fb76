#pragma once

#include <QBasicTimer>
#include <QListView>
#include <QPersistentModelIndex>
#include <optional>

namespace velmora {

class RecordListModel;
class RecordRowDelegate;

/// The scrolling list of records. Only the rows in sight are drawn. It changes nothing itself but
/// the selection.
class RecordListView : public QListView {
    Q_OBJECT
public:
    explicit RecordListView(RecordListModel& model);

    /// Whether rows can be dragged to another place, or moved with Alt+Up and Alt+Down.
    void setReorderable(bool reorderable) { isReorderable_ = reorderable; }

Q_SIGNALS:
    void editRequested(int row);
    /// From the row's context menu.
    void deleteRequested(int row);
    /// By the keyboard, for the row that is selected.
    void deleteSelectedRequested();
    /// `destination` is an insertion position counted in the list before the move.
    void moveRequested(int source, int destination);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// A row on its way to another place.
    struct Drag {
        QPersistentModelIndex source;
        int pointerY; ///< in the viewport
    };

    /// The insertion position, 0 to the number of rows, that is nearest to the pointer.
    int dropOffset() const;
    void dragTo(int y);
    void endDrag();
    int selectedRow() const; ///< -1 for none

    RecordRowDelegate* const delegate_;
    bool isReorderable_ = false;
    QPersistentModelIndex pressed_;
    QPoint pressPoint_;
    std::optional<Drag> drag_;
    QBasicTimer scrollTimer_;
};

} // namespace velmora
