#pragma once

#include "model/ShortcutAction.h"
#include "platform/KeyboardEvents.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace velmora {

class Workspace;

/// Carries out one action of any kind: the only place where actions take effect. Outcomes go to
/// the log; nothing is reported to the caller. Main thread only.
class ActionEngine {
public:
    /// Suspends the calling thread.
    using Wait = std::function<void(std::chrono::microseconds)>;

    /// The process-wide engine over the current platform, made on first use, never destroyed.
    static ActionEngine& shared();

    /// `wait` separates a key's press from its release.
    ActionEngine(Workspace& workspace, KeyboardEvents& keyboardEvents, Wait wait = sleep);

    /// Applications, URLs and commands run on when this returns; a key combination is done.
    void execute(const ShortcutAction& action);

private:
    static void sleep(std::chrono::microseconds duration);

    void launchApplication(const QString& name, const std::optional<QString>& bundleId);
    void openURL(const QString& urlString);
    void executeShellCommand(const QString& command);
    void pressKeyCombo(const QStringList& modifiers, const QString& key);
    /// The event source; creation is tried once.
    EventSource* eventSource();

    Workspace& workspace_;
    KeyboardEvents& keyboardEvents_;
    Wait wait_;
    /// Outer: not tried yet. Inner null: tried once, and there is none for the life of the process.
    std::optional<std::unique_ptr<EventSource>> cachedEventSource_;
};

} // namespace velmora
