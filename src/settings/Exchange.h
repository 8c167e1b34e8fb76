#pragma once

#include "model/Setup.h"

#include <functional>

namespace velmora {

/// Hands what the user has set up out to a file, and takes it in from one. Main thread only.
class Exchange {
public:
    /// Over the shared stores; an import can be undone as one step.
    static Exchange& shared();

    /// `current` gives what is set up now, `take` replaces it.
    Exchange(std::function<Setup()> current, std::function<void(const Setup& setup)> take)
        : current_(std::move(current)), take_(std::move(take)) {}

    /// Both give the reason where they fail, and have changed nothing then; else an empty text.
    QString exportTo(const QString& path) const;
    QString importFrom(const QString& path) const;

private:
    const std::function<Setup()> current_;
    const std::function<void(const Setup& setup)> take_;
};

} // namespace velmora
