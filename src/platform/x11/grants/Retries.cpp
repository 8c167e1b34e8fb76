#include "platform/x11/grants/Retries.h"

#include "foundation/Log.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

Retries::Retries(Pauses pauses, const std::function<void()>& again) : pauses_(pauses) {
    timer_.setSingleShot(true);
    timer_.callOnTimeout(again);
}

void Retries::noteRefusal(const QString& name) {
    if (refusals_ == 0 || name != refusedName_)
        Log::writeDiagnostic(name + u" is held by another program; trying again"_s);
    refusedName_ = name;
    timer_.start(pauses_[std::min(refusals_++, pauses_.size() - 1)]);
}

void Retries::noteSuccess() {
    if (refusals_ > 0)
        Log::writeDiagnostic(refusedName_ + u" works again"_s);
    stop();
}

void Retries::stop() {
    refusals_ = 0;
    timer_.stop();
}

} // namespace velmora
