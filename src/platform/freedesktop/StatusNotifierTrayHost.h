#pragma once

#include "platform/TrayHost.h"

#include <memory>

class QDBusServiceWatcher;

namespace velmora {

/// Trays that draw items described on the session bus: whoever has "org.kde.StatusNotifierWatcher"
/// there. Without a bus there is none, and none is started.
class StatusNotifierTrayHost : public TrayHost {
public:
    StatusNotifierTrayHost();
    ~StatusNotifierTrayHost() override;

    void whenThere(std::function<void()> task) override;

private:
    void arrived();

    std::unique_ptr<QDBusServiceWatcher> watcher_; ///< until there is one
    std::function<void()> task_;
};

} // namespace velmora
