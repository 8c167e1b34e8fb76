#include "settings/RecordListModel.h"

#include "viewkit/TwoLineRow.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

void RecordListModel::setSnapshot(RecordSnapshot snapshot) {
    const QList<QUuid>& before = snapshot_.ids;
    const QList<QUuid>& after = snapshot.ids;
    const auto firstDifference =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const qsizetype start = firstDifference.first - before.begin();
    const auto lastDifference =
        std::mismatch(before.rbegin(), before.rend() - start, after.rbegin(), after.rend() - start);
    const qsizetype tail = lastDifference.first - before.rbegin();
    const qsizetype removed = before.size() - tail - start;
    const qsizetype inserted = after.size() - tail - start;

    if (removed > 0) {
        // In between there is a list without the rows that differ, described by the old snapshot.
        beginRemoveRows({}, int(start), int(start + removed - 1));
        const auto rowBefore = snapshot_.row;
        snapshot_.ids.remove(start, removed);
        snapshot_.row = [rowBefore, start, removed](qsizetype position) {
            return rowBefore(position < start ? position : position + removed);
        };
        endRemoveRows();
    }
    if (inserted > 0)
        beginInsertRows({}, int(start), int(start + inserted - 1));
    snapshot_ = std::move(snapshot);
    if (inserted > 0)
        endInsertRows();
    if (!snapshot_.ids.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QUuid RecordListModel::id(const QModelIndex& index) const {
    return snapshot_.ids.at(index.row());
}

RecordRow RecordListModel::row(const QModelIndex& index) const {
    return snapshot_.row(index.row());
}

QModelIndex RecordListModel::indexOf(const QUuid& id) const {
    const qsizetype position = snapshot_.ids.indexOf(id);
    return position < 0 ? QModelIndex() : index(int(position));
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(snapshot_.ids.size());
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    const RecordRow described = row(index);
    if (role == Qt::DisplayRole)
        return singleLine(described.title);
    QStringList texts{singleLine(described.title), singleLine(described.detail), described.badge};
    texts.removeAll(QString());
    return texts.join(u", "_s);
}

} // namespace velmora
