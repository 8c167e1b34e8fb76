#include "actions/ActionEngine.h"

#include "actions/KeyNames.h"
#include "foundation/ChildProcess.h"
#include "foundation/Log.h"
#include "platform/Session.h"
#include "platform/Workspace.h"

#include <QScopeGuard>
#include <QUrl>
#include <thread>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr std::chrono::microseconds keyHold{50000};

template<typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template<typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

} // namespace

ActionEngine& ActionEngine::shared() {
    static auto* const instance =
        new ActionEngine(Session::current().workspace(), Session::current().keyboardEvents());
    return *instance;
}

ActionEngine::ActionEngine(Workspace& workspace, KeyboardEvents& keyboardEvents, Wait wait)
    : workspace_(workspace), keyboardEvents_(keyboardEvents), wait_(std::move(wait)) {}

void ActionEngine::sleep(std::chrono::microseconds duration) {
    std::this_thread::sleep_for(duration);
}

void ActionEngine::execute(const ShortcutAction& action) {
    Log::write(u"🚀 Executing action: %1"_s.arg(displayName(action)));
    std::visit(
        Overloaded{
            [this](const LaunchApp& launch) { launchApplication(launch.name, launch.bundleId); },
            [this](const OpenUrl& open) { openURL(open.url); },
            [this](const ExecuteShellCommand& shell) { executeShellCommand(shell.command); },
            [this](const PressKeyCombo& combo) { pressKeyCombo(combo.modifiers, combo.key); },
        },
        action);
}

void ActionEngine::launchApplication(const QString& name, const std::optional<QString>& bundleId) {
    if (bundleId) {
        if (const auto location = workspace_.applicationLocation(*bundleId)) {
            workspace_.openApplication(
                *location, OpenConfiguration{}, [name](const std::optional<QString>& error) {
                    Log::write(
                        error ? u"⚠️ Failed to launch via bundle ID: %1"_s.arg(*error)
                              : u"✅ Launched %1 via bundle ID"_s.arg(name));
                });
            return;
        }
    }
    auto location = workspace_.applicationLocation(u"com.apple."_s + name);
    if (!location) {
        const QStringList locations = workspace_.applicationLocations(name);
        if (locations.isEmpty()) {
            Log::write(u"❌ Could not find application: %1"_s.arg(name));
            return;
        }
        location = locations.first();
    }
    workspace_.openApplication(
        *location, OpenConfiguration{}, [name](const std::optional<QString>& error) {
            Log::write(
                error ? u"❌ Failed to launch %1: %2"_s.arg(name, *error)
                      : u"✅ Launched %1"_s.arg(name));
        });
}

void ActionEngine::openURL(const QString& urlString) {
    const QUrl url(urlString, QUrl::StrictMode);
    if (!url.isValid()) {
        Log::write(u"❌ Invalid URL: %1"_s.arg(urlString));
        return;
    }
    workspace_.openUrl(url);
    Log::write(u"✅ Opened URL: %1"_s.arg(urlString));
}

void ActionEngine::executeShellCommand(const QString& command) {
    ChildProcess::run(u"/bin/zsh"_s, {u"-c"_s, command}, [](const ChildProcess::Outcome& outcome) {
        if (!outcome.startFailure.isEmpty()) {
            Log::write(u"❌ Failed to execute command: %1"_s.arg(outcome.startFailure));
            return;
        }
        if (outcome.output && !outcome.output->isEmpty())
            Log::write(u"📝 Command output: "_s, *outcome.output);
        if (outcome.truncated)
            Log::write(u"⚠️ The rest of the command's output was dropped"_s);
        Log::write(u"✅ Executed shell command"_s);
    });
}

void ActionEngine::pressKeyCombo(const QStringList& modifiers, const QString& key) {
    Log::write(u"⌨️ Pressing: %1+%2"_s.arg(modifiers.join(u'+'), key));
    const auto code = KeyNames::keyCode(key);
    if (!code) {
        Log::write(u"❌ Unknown key: %1"_s.arg(key));
        return;
    }
    Log::write(u"📍 Key code: 0x%1"_s.arg(*code, 2, 16, QChar(u'0')));

    EventFlags flags = 0;
    for (const QString& modifier : modifiers) {
        if (const auto flag = KeyNames::modifierFlag(modifier)) {
            flags |= *flag;
            Log::write(u"  + "_s + modifier);
        } else {
            Log::write(u"  ⚠️ Unknown modifier: %1"_s.arg(modifier));
        }
    }

    EventSource* source = eventSource();
    if (!source) {
        Log::write(u"❌ Failed to get event source"_s);
        return;
    }
    auto keyDown = keyboardEvents_.createKeyboardEvent(*source, *code, true);
    if (!keyDown) {
        Log::write(u"❌ Failed to create key down event"_s);
        return;
    }
    keyDown->setFlags(flags);
    auto keyUp = keyboardEvents_.createKeyboardEvent(*source, *code, false);
    if (!keyUp) {
        Log::write(u"❌ Failed to create key up event"_s);
        return;
    }
    keyUp->setFlags(flags);

    Log::write(u"📤 Posting key down event..."_s);
    {
        // Whatever happens from here on, the key does not stay down.
        const auto release = qScopeGuard([&] {
            Log::write(u"📤 Posting key up event..."_s);
            keyboardEvents_.post(*keyUp);
        });
        keyboardEvents_.post(*keyDown);
        wait_(keyHold);
    }
    Log::write(u"✅ Key combo sent successfully"_s);
}

EventSource* ActionEngine::eventSource() {
    if (!cachedEventSource_)
        cachedEventSource_ =
            keyboardEvents_.createEventSource(EventSourceState::combinedSessionState);
    return cachedEventSource_->get();
}

} // namespace velmora
