#pragma once

#include "platform/TrayHost.h"

namespace velmora {

/// Trays of two kinds, whichever comes first.
class EitherTrayHost : public TrayHost {
public:
    /// Both outlive this one.
    EitherTrayHost(TrayHost& first, TrayHost& second) : first_(first), second_(second) {}

    void whenThere(std::function<void()> task) override;

private:
    TrayHost& first_;
    TrayHost& second_;
    std::function<void()> task_;
};

} // namespace velmora
