#pragma once

#include "platform/TrayHost.h"

namespace velmora::test {

/// A tray that comes when the test says so.
class FakeTrayHost : public TrayHost {
public:
    void whenThere(std::function<void()> task) override { arrive = std::move(task); }

    /// Empty until someone looks for a tray.
    std::function<void()> arrive;
};

} // namespace velmora::test
