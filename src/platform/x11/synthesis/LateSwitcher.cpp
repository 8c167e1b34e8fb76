#include "platform/x11/synthesis/LateSwitcher.h"

#include "platform/x11/keyboard/ModifierMap.h"
#include "platform/x11/synthesis/SyntheticKeys.h"

#include <algorithm>

namespace velmora {
namespace {

/// The server looks for another holder first, and then at the window, which refuses.
bool isHeld(xcb_connection_t* connection, xcb_grab_keyboard_cookie_t asked) {
    const XcbOwned<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(connection, asked, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

} // namespace

LateSwitcher::LateSwitcher(X11Connection& connection)
    : connection_(connection), window_(connection.makeHiddenWindow()) {
    timer_.setInterval(100);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { check(); });
}

LateSwitcher::~LateSwitcher() {
    xcb_destroy_window(connection_, window_);
}

LateSwitcher::Question LateSwitcher::ask() {
    const auto grab = xcb_grab_keyboard(
        connection_, false, window_, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return {grab, xcb_query_keymap(connection_)};
}

bool LateSwitcher::willSeeRelease(const Question& question, xcb_keycode_t keycode) {
    const bool held = isHeld(connection_, question.grab);
    const XcbOwned<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(connection_, question.keymap, nullptr));
    return held && keymap && !isDown(keymap->keys, keycode);
}

bool LateSwitcher::isHeldWithoutKeys() {
    const Question question = ask();
    const bool held = isHeld(connection_, question.grab);
    const XcbOwned<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(connection_, question.keymap, nullptr));
    return held && keymap && std::ranges::all_of(keymap->keys, [](uint8_t byte) { return !byte; });
}

void LateSwitcher::watch(
    std::vector<xcb_keycode_t> modifiers, xcb_keycode_t inert, std::function<bool()> isTaken) {
    modifiers_ = std::move(modifiers);
    inert_ = inert;
    isTaken_ = std::move(isTaken);
    checksLeft_ = 5;
    checksLeftWithout_ = 100;
    askManagerToAnswer();
    timer_.start();
}

void LateSwitcher::askManagerToAnswer() {
    // Resizing a window is up to the window manager, which hears of it after the keys. Without one
    // the server does it at once. A width not asked for before: an earlier answer may still come.
    awaitedWidth_ = static_cast<uint16_t>(awaitedWidth_ % 1000 + 1);
    const uint32_t width = awaitedWidth_;
    xcb_configure_window(connection_, window_, XCB_CONFIG_WINDOW_WIDTH, &width);
    xcb_flush(connection_);
}

void LateSwitcher::check() {
    const auto geometryCookie = xcb_get_geometry(connection_, window_);
    const bool heldWithoutKeys = isHeldWithoutKeys();
    const XcbOwned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection_, geometryCookie, nullptr));
    const bool hasAnswered = geometry && geometry->width == awaitedWidth_;
    if (--(hasAnswered ? checksLeft_ : checksLeftWithout_) == 0)
        timer_.stop();
    if (heldWithoutKeys && isTaken_())
        tap();
}

void LateSwitcher::tap() {
    // While the user holds a key, its release is still to come. The server listens to nobody else
    // between the look and the tap.
    xcb_grab_server(connection_);
    if (isHeldWithoutKeys()) {
        timer_.stop();
        for (const xcb_keycode_t keycode : modifiers_)
            SyntheticKeys::press(connection_, keycode);
        if (inert_ != 0) {
            SyntheticKeys::press(connection_, inert_);
            SyntheticKeys::release(connection_, inert_);
        }
        for (const xcb_keycode_t keycode : modifiers_)
            SyntheticKeys::release(connection_, keycode);
    }
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
}

} // namespace velmora
