#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace velmora {

class RecordListModel;

/// Draws the rows of a record list: symbol, title over detail, and a badge at the trailing edge.
class RecordRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit RecordRowDelegate(const RecordListModel& model, QObject* parent);

    /// Height in points, alike for all rows.
    static int rowHeight();

    /// Marks the row whose context menu is open; invalid for none.
    void setMenuIndex(const QModelIndex& index) { menuIndex_ = index; }
    /// Dims the row that is being dragged; invalid for none.
    void setDraggedIndex(const QModelIndex& index) { draggedIndex_ = index; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const RecordListModel& model_;
    QPersistentModelIndex menuIndex_;
    QPersistentModelIndex draggedIndex_;
};

} // namespace velmora
