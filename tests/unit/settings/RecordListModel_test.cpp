// The rows of a record list from one snapshot to the next.

#include "settings/RecordListModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(RecordListModel, FollowsAnyEditAndKeepsRowsOutsideIt) {
    QRandomGenerator random(7);
    QAbstractItemModelTester tester(
        new RecordListModel(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto& model = *static_cast<RecordListModel*>(tester.model());
    QList<QUuid> ids;
    for (int round = 0; round < 400; ++round) {
        const QList<QUuid> before = ids;
        const auto at = [&](qsizetype count) { return random.bounded(int(count)); };
        const int kind = ids.isEmpty() ? 0 : random.bounded(5);
        if (kind <= 1) // an id twice: ids are not checked
            ids.insert(at(ids.size() + 1), kind == 0 ? QUuid::createUuid() : ids.first());
        else if (kind == 2)
            ids.removeAt(at(ids.size()));
        else if (kind == 3)
            ids.move(at(ids.size()), at(ids.size()));
        else
            ids = ids.mid(at(ids.size()));
        const auto first = std::mismatch(before.begin(), before.end(), ids.begin(), ids.end());
        // The last row before the edit tells of those before it.
        const int kept = int(first.first - before.begin()) - 1;
        const QPersistentModelIndex keptRow = model.index(kept);
        model.setSnapshot({.ids = ids, .row = [ids](qsizetype position) {
                               return RecordRow{{}, ids.at(position).toString(), {}, {}};
                           }});
        ASSERT_EQ(model.rowCount(), ids.size());
        for (int row = 0; row < model.rowCount(); ++row) {
            ASSERT_EQ(model.id(model.index(row)), ids.at(row));
            ASSERT_EQ(model.row(model.index(row)).title, ids.at(row).toString());
        }
        ASSERT_EQ(keptRow.row(), kept) << round;
    }
    delete &model;
}
