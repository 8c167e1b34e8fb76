#pragma once

#include "platform/TrayHost.h"

namespace velmora {

/// Two kinds of tray as one: there is a tray as long as there is one of either kind.
class EitherTrayHost : public TrayHost {
public:
    /// Both outlive this one.
    EitherTrayHost(TrayHost& first, TrayHost& second) : first_(first), second_(second) {}

    void observe(std::function<void(bool isThere)> handler) override;

private:
    void report(bool& kind, bool isThere);

    TrayHost& first_;
    TrayHost& second_;
    bool isFirstThere_ = false;
    bool isSecondThere_ = false;
    std::function<void(bool)> handler_;
};

} // namespace velmora
