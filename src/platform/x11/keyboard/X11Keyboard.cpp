#include "platform/x11/keyboard/X11Keyboard.h"

#include "platform/x11/base/Xcb.h"

namespace velmora {

X11Keyboard::X11Keyboard(X11Connection& connection) : connection_(connection) {
    const auto* extension = findExtension(connection_, xcb_xkb_id);
    if (!extension)
        return;
    const XcbOwned<xcb_xkb_use_extension_reply_t> use(xcb_xkb_use_extension_reply(
        connection_,
        xcb_xkb_use_extension(connection_, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
    if (!use || !use->supported)
        return;
    available_ = true;
    xkbEvent_ = extension->first_event;
    constexpr uint16_t changes =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr uint16_t allParts = 0xff;
    xcb_xkb_select_events(
        connection_, XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes, allParts, allParts, nullptr);
    read();

    // A layout tool sends many changes in a row.
    changed_.setSingleShot(true);
    changed_.setInterval(20);
    QObject::connect(&changed_, &QTimer::timeout, &changed_, [this] { read(); });
    subscription_ = connection_.subscribe([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != xkbEvent_)
            return;
        // The second byte of each XKB event says which it is.
        const uint8_t kind = event.pad0;
        if (kind == XCB_XKB_NEW_KEYBOARD_NOTIFY || kind == XCB_XKB_MAP_NOTIFY)
            changed_.start();
    });
}

void X11Keyboard::observe(const QObject* context, const std::function<void()>& handler) const {
    // After read(), which was connected first.
    QObject::connect(&changed_, &QTimer::timeout, context, handler);
}

const KeyLabels& X11Keyboard::labels() const {
    if (!labels_)
        labels_ = KeyLabels::read(connection_);
    return *labels_;
}

void X11Keyboard::read() {
    positions_ = KeyPositions::read(connection_);
    modifiers_ = ModifierMap::read(connection_);
    labels_.reset();
}

} // namespace velmora
