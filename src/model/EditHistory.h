#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>
#include <functional>

namespace velmora {

/// What the user did to the stored lists since the program started, to be taken back and done
/// again, the latest first; in all lists together. Main thread only.
class EditHistory : public QObject {
    Q_OBJECT
public:
    /// The process-wide history, made on first use, never destroyed.
    static EditHistory& shared();

    /// A change that was made to a list.
    struct Edit {
        QString name; ///< for the user, in their language: "Delete “Safari”"
        QUuid record; ///< the one that it is about; null for none
        std::function<void()> undo;
        std::function<void()> redo;
    };

    /// More are forgotten, the oldest first.
    static constexpr qsizetype mostSteps = 100;

    /// Makes `edit`, already carried out, the next step to be undone. What was undone before cannot
    /// be done again.
    void record(const Edit& edit);
    /// Makes all that `work` records one step under `name`.
    void group(const QString& name, const std::function<void()>& work);

    /// The name of what would be undone or done again; empty when there is nothing.
    QString undoName() const { return nameAt(done_ - 1); }
    QString redoName() const { return nameAt(done_); }

    void undo();
    void redo();

Q_SIGNALS:
    /// After a step was undone or done again: the record that it is about.
    void stepped(const QUuid& record);

private:
    struct Step {
        QString name;
        QList<Edit> edits;
    };

    QString nameAt(qsizetype step) const { return steps_.value(step).name; }
    void append(const Step& step);

    QList<Step> steps_;
    qsizetype done_ = 0;    ///< how many of them are done; those behind were undone
    Step* group_ = nullptr; ///< what edits are gathered in
};

} // namespace velmora
