#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QUuid>
#include <functional>

namespace velmora {

/// What a row of a record list shows.
struct RecordRow {
    QString symbol;
    QString title;
    QString detail;
    QString badge; ///< empty for none
};

/// A list of records as it was at one moment.
struct RecordSnapshot {
    QList<QUuid> ids;
    /// Describes the record at a position of `ids`; called for the rows that are looked at.
    std::function<RecordRow(qsizetype position)> row;
};

/// The snapshot of `records`, each described by `describe`.
template<typename Record>
RecordSnapshot snapshot(const QList<Record>& records, RecordRow (*describe)(const Record&)) {
    QList<QUuid> ids;
    ids.reserve(records.size());
    for (const Record& record : records)
        ids.append(record.id());
    return {.ids = ids, .row = [records, describe](qsizetype position) {
                return describe(records.at(position));
            }};
}

/// The rows of a record list, identified by the records' ids.
class RecordListModel : public QAbstractListModel {
    Q_OBJECT
public:
    /// Replaces the rows. Those before the first and after the last difference stay the same rows.
    void setSnapshot(RecordSnapshot snapshot);

    QUuid id(const QModelIndex& index) const;
    RecordRow row(const QModelIndex& index) const;
    /// The first row of `id`; invalid when there is none.
    QModelIndex indexOf(const QUuid& id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    /// The title on one line, and the text for assistive programs.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    RecordSnapshot snapshot_;
};

} // namespace velmora
