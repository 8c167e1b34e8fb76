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

    void observe(std::function<void(bool isThere)> handler) override;

private:
    void report(bool isThere);

    std::unique_ptr<QDBusServiceWatcher> watcher_;
    std::function<void(bool)> handler_;
    bool isThere_ = false;
};

} // namespace velmora
