#pragma once

#include <QStringList>
#include <functional>

namespace velmora {

/// Whether this process may observe and post input for the whole session.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    /// AXIsProcessTrusted: the answer, without telling the user anything.
    virtual bool isProcessTrusted() const = 0;

    /// What the display server lacks that trust needs, by name. Empty with trust, and where it is
    /// the kind of session (Wayland) that gives none.
    virtual QStringList missingExtensions() const = 0;

    /// AXIsProcessTrustedWithOptions with kAXTrustedCheckOptionPrompt: the same answer; when it is
    /// no, the user is told (once a process, however often this is asked).
    bool isProcessTrustedWithPrompt();

    /// Sets what tells the user that trust is missing.
    void setPromptHandler(std::function<void()> handler) { promptHandler_ = std::move(handler); }

private:
    std::function<void()> promptHandler_;
    bool prompted_ = false;
};

inline bool Accessibility::isProcessTrustedWithPrompt() {
    const bool trusted = isProcessTrusted();
    if (!trusted && !prompted_ && promptHandler_) {
        prompted_ = true;
        promptHandler_();
    }
    return trusted;
}

} // namespace velmora
