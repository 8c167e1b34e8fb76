#pragma once

#include "model/ShortcutAction.h"

#include <functional>
#include <memory>
#include <optional>

namespace velmora {

class EventSource;
class KeyboardEvents;
class Workspace;

/// Carries out one action of any kind: the only place where actions take effect. Outcomes go to
/// the log; nothing is reported to the caller. Main thread only.
class ActionEngine {
public:
    static ActionEngine& shared();

    ActionEngine(Workspace& workspace, KeyboardEvents& keyboardEvents);
    ~ActionEngine();

    void execute(const ShortcutAction& action);

private:
    void launchApplication(const QString& name, const std::optional<QString>& bundleId);
    void openURL(const QString& urlString);
    void executeShellCommand(const QString& command);
    void pressKeyCombo(const QStringList& modifiers, const QString& key);

    Workspace& workspace_;
    KeyboardEvents& keyboardEvents_;
    /// Outer: not tried yet. Inner null: tried once, and there is none for the life of the process.
    std::optional<std::unique_ptr<EventSource>> cachedEventSource_;
};

} // namespace velmora
