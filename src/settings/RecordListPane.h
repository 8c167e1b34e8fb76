#pragma once

#include "settings/RecordListModel.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;
class QPushButton;

namespace velmora {

class RecordListView;
class Sheet;

/// What a record list works on. All but `move` are required.
struct RecordSource {
    std::function<RecordSnapshot()> snapshot; ///< the records as they are now
    std::function<void(qsizetype index)> remove;
    /// Moves a record to an insertion position counted before the move; empty: rows stay put.
    std::function<void(qsizetype source, qsizetype destination)> move = {};
    /// Closes the editor's sheet; `saved` is the record that was saved, if any.
    using Done = std::function<void(std::optional<QUuid> saved)>;
    /// The editor for the record at `index`, or for a new one when no record is there.
    std::function<std::unique_ptr<QWidget>(qsizetype index, Done done)> makeEditor;
};

/// The position in `records` of the one with the id of `record`: `before`, where it was once,
/// unless the list has changed since; -1 when it has gone.
template<typename Record>
qsizetype positionOf(const Record& record, const QList<Record>& records, qsizetype before) {
    const bool isThere = before >= 0 && before < records.size() && records.at(before) == record;
    return isThere ? before : records.indexOf(record);
}

/// A tab's title, the list of records, and the buttons that add, edit and delete one. Ctrl+N adds.
class RecordListPane : public QWidget {
    Q_OBJECT
public:
    RecordListPane(const QString& title, RecordSource source);

    /// Reads the records again in the next turn of the event loop, once for any number of calls.
    void scheduleReload();

    /// Whether `record` is in the list, or was until its latest change.
    bool knows(const QUuid& record) const;
    /// Selects `record` and brings it into sight; one that has gone is no longer selected.
    void reveal(const QUuid& record);

    /// Appends a button to the bar, `leadingPadding` points further from the one before.
    QPushButton* addButton(const QString& symbol, const QString& title, int leadingPadding = 0);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// An opening of the editor.
    void openEditor(qsizetype index);
    /// Reads the records now; whoever changes them from here calls it, as the next key may come
    /// before the next turn.
    void reload();
    void remove(qsizetype index);
    void setSelection(std::optional<QUuid> selection);
    void editSelected();
    void deleteSelected();

    const RecordSource source_;
    RecordListModel model_;
    RecordListView* const list_;
    QHBoxLayout* const bar_;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
    std::optional<QUuid> selection_; ///< may be gone from the list by now
    QPointer<Sheet> editor_;         ///< while it is open
    bool isReloadScheduled_ = false;
    bool isReloading_ = false;
};

} // namespace velmora
