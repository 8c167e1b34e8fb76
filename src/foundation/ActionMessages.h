#pragma once

#include <QHash>
#include <QString>
#include <functional>

namespace velmora {

/// Messages by name that a lower room sends upwards ("toggleOverlayMenu", "showSettings",
/// "quitApp"), answered by whoever has registered for the name. Main thread only.
class ActionMessages {
public:
    static ActionMessages& shared();

    /// Answers `name` with `handler`, replacing an earlier one.
    void setHandler(const QString& name, std::function<void()> handler);

    /// Delivers `name` now; nothing happens when nobody answers it.
    void send(const QString& name) const;

private:
    QHash<QString, std::function<void()>> handlers_;
};

} // namespace velmora
