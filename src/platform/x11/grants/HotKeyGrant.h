#pragma once

#include "platform/InputGrants.h"
#include "platform/x11/base/XInput.h"
#include "platform/x11/grants/Retries.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <set>
#include <vector>

namespace velmora {

/// Presses of a chord on each of the session's master keyboards, those that come later included.
/// The keyboard is let go at once on the press, so that the release reaches the application in
/// front and it never loses the focus for longer than that. Asynchronous: whatever this process
/// does, the user's keyboard is never frozen. Follows the key when the keyboard changes.
class HotKeyGrant final : public InputGrant {
public:
    HotKeyGrant(
        X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput,
        const Chord& chord, InputGrants::KeyHandler pressed);
    ~HotKeyGrant() override;

private:
    /// Takes what of the chord is not held yet and says how it went. Granted also when another
    /// program has a longer chord that contains this one: that is asked for again after each press.
    void obtain();
    void takeMissing();
    void grab(const std::vector<std::uint32_t>& states);
    void ungrab(const std::set<std::uint32_t>& states);
    bool holdsPlainChord() const;
    const QString& name();
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    const XInput xinput_;
    const Chord chord_;
    const InputGrants::KeyHandler pressed_;
    xcb_keycode_t keycode_ = 0;    ///< what is held now, 0 for none
    std::set<std::uint32_t> held_; ///< with these modifier states
    QString name_;                 ///< empty until asked for: it takes milliseconds
    Retries retries_{Retries::usualPauses, [this] { obtain(); }};
    QObject context_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora
