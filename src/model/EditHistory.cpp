#include "model/EditHistory.h"

#include <ranges>

namespace velmora {

EditHistory& EditHistory::shared() {
    static auto* instance = new EditHistory;
    return *instance;
}

void EditHistory::record(const Edit& edit) {
    if (group_)
        group_->edits.append(edit);
    else
        append({edit.name, {edit}});
}

void EditHistory::group(const QString& name, const std::function<void()>& work) {
    Step step{name, {}};
    group_ = &step;
    work();
    group_ = nullptr;
    if (!step.edits.isEmpty())
        append(step);
}

void EditHistory::append(const Step& step) {
    steps_.resize(done_);
    steps_.append(step);
    if (steps_.size() > mostSteps)
        steps_.removeFirst();
    done_ = steps_.size();
}

void EditHistory::undo() {
    if (done_ == 0)
        return;
    const Step step = steps_.at(--done_);
    for (const Edit& edit : step.edits | std::views::reverse)
        edit.undo();
    Q_EMIT stepped(step.edits.first().record);
}

void EditHistory::redo() {
    if (done_ == steps_.size())
        return;
    const Step step = steps_.at(done_++);
    for (const Edit& edit : step.edits)
        edit.redo();
    Q_EMIT stepped(step.edits.first().record);
}

} // namespace velmora
