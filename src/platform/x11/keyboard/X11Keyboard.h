#pragma once

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/keyboard/KeyLabels.h"
#include "platform/x11/keyboard/KeyPositions.h"
#include "platform/x11/keyboard/ModifierMap.h"

#include <QTimer>

namespace velmora {

/// The session's core keyboard as it is now: read at the start, and again when its map changes or
/// another keyboard takes over. Main thread; follows changes while the connection delivers events.
class X11Keyboard {
public:
    explicit X11Keyboard(X11Connection& connection);

    /// Whether the server has the XKB extension; without it no key is known.
    bool isAvailable() const { return available_; }

    /// The first event of the XKB extension; 0 without it.
    uint8_t xkbEvent() const { return xkbEvent_; }

    const KeyPositions& positions() const { return positions_; }
    const ModifierMap& modifiers() const { return modifiers_; }
    /// Read when first asked for: it takes a few milliseconds.
    const KeyLabels& labels() const;

    /// Calls `handler` after each change, as long as `context` lives.
    void observe(const QObject* context, const std::function<void()>& handler) const;

private:
    void read();

    X11Connection& connection_;
    bool available_ = false;
    uint8_t xkbEvent_ = 0;
    KeyPositions positions_;
    ModifierMap modifiers_;
    mutable std::optional<KeyLabels> labels_; ///< of the present map, once asked for
    QTimer changed_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora
