#pragma once

#include "platform/TrayHost.h"

#include <QObject>
#include <memory>

class QDBusServiceWatcher;

namespace velmora {

/// Trays that draw items described on the session bus: there when whoever has
/// "org.kde.StatusNotifierWatcher" knows of one, a host, which may come long after the watcher.
/// Without a bus there is none, and none is started.
class StatusNotifierTrayHost : public QObject, public TrayHost {
    Q_OBJECT
public:
    StatusNotifierTrayHost();
    ~StatusNotifierTrayHost() override;

    void whenThere(std::function<void()> task) override;

private Q_SLOTS:
    /// Asks the watcher, without waiting, for a host.
    void ask();

private:
    void arrived();

    std::unique_ptr<QDBusServiceWatcher> watcher_; ///< until there is a host
    std::function<void()> task_;
};

} // namespace velmora
