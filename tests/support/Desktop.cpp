#include "support/Desktop.h"

#include "support/TestDisplay.h"

#include <algorithm>
#include <stdexcept>
#include <xcb/xinput.h>
#define explicit explicitModifiers // a member's name in this header
#include <xcb/xkb.h>
#undef explicit

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

xcb_window_t windowProperty(const XClient& client, const QByteArray& name) {
    const auto values = client.property(client.root(), name);
    return values.empty() ? 0 : values.front();
}

void useXkb(const XClient& client) {
    Reply<xcb_xkb_use_extension_reply_t>(
        xcb_xkb_use_extension_reply(client, xcb_xkb_use_extension(client, 1, 0), nullptr));
}

} // namespace

bool hasWindowManager(const XClient& client) {
    return windowProperty(client, "_NET_SUPPORTING_WM_CHECK") != 0;
}

xcb_window_t activeWindow(const XClient& client) {
    return windowProperty(client, "_NET_ACTIVE_WINDOW");
}

xcb_window_t inputFocus(const XClient& client) {
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(client, xcb_get_input_focus(client), nullptr));
    return reply->focus;
}

std::vector<TopWindow> topWindows(const XClient& client) {
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(client, xcb_query_tree(client, client.root()), nullptr));
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::vector<TopWindow> windows;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t id = children[i];
        const Reply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            client, xcb_get_window_attributes(client, id), nullptr));
        const Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(client, xcb_get_geometry(client, id), nullptr));
        if (!attributes || !geometry)
            continue; // gone meanwhile
        const auto processId = client.property(id, "_NET_WM_PID");
        windows.push_back(
            {id, QRect(geometry->x, geometry->y, geometry->width, geometry->height),
             attributes->map_state == XCB_MAP_STATE_VIEWABLE, attributes->override_redirect != 0,
             processId.empty() ? 0 : processId.front()});
    }
    return windows;
}

QRect area(const XClient& client, xcb_window_t window) {
    const Reply<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        client, xcb_translate_coordinates(client, window, client.root(), 0, 0), nullptr));
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(client, xcb_get_geometry(client, window), nullptr));
    return origin && size ? QRect(origin->dst_x, origin->dst_y, size->width, size->height)
                          : QRect();
}

QImage screenshot(const XClient& client, const QRect& area) {
    const QRect whole(0, 0, client.screen().width_in_pixels, client.screen().height_in_pixels);
    const QRect wanted = area.isEmpty() ? whole : area & whole;
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(
        client,
        xcb_get_image(
            client, XCB_IMAGE_FORMAT_Z_PIXMAP, client.root(), static_cast<int16_t>(wanted.x()),
            static_cast<int16_t>(wanted.y()), static_cast<uint16_t>(wanted.width()),
            static_cast<uint16_t>(wanted.height()), ~0u),
        nullptr));
    if (!reply)
        return {};
    // Depth 24 comes as four bytes a pixel, blue first.
    return QImage(
               xcb_get_image_data(reply.get()), wanted.width(), wanted.height(),
               QImage::Format_RGB32)
        .copy();
}

QRgb pixel(const XClient& client, const QPoint& place) {
    const QImage image = screenshot(client, QRect(place, QSize(1, 1)));
    return image.isNull() ? 0 : image.pixel(0, 0);
}

void setLayout(const QString& layout) {
    // setxkbmap returns when the server has taken the new map.
    QProcess process;
    process.start(u"setxkbmap"_s, {u"-layout"_s, layout, u"-option"_s, u""_s});
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error("setxkbmap failed: " + layout.toStdString());
}

void lockGroup(const XClient& client, uint8_t group) {
    useXkb(client);
    xcb_xkb_latch_lock_state(client, XCB_XKB_ID_USE_CORE_KBD, 0, 0, true, group, 0, false, 0);
    client.sync();
}

void lockModifiers(const XClient& client, uint8_t mask, bool on) {
    useXkb(client);
    xcb_xkb_latch_lock_state(
        client, XCB_XKB_ID_USE_CORE_KBD, mask, on ? mask : 0, false, 0, 0, false, 0);
    client.sync();
}

KeyboardState keyboardState(const XClient& client) {
    useXkb(client);
    const Reply<xcb_xkb_get_state_reply_t> reply(xcb_xkb_get_state_reply(
        client, xcb_xkb_get_state(client, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return {reply->mods, reply->baseMods, reply->latchedMods, reply->lockedMods, reply->group};
}

uint8_t inputDevice(const XClient& client, uint16_t type) {
    Reply<xcb_input_xi_query_version_reply_t>(xcb_input_xi_query_version_reply(
        client, xcb_input_xi_query_version(client, 2, 2), nullptr));
    const Reply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        client, xcb_input_xi_query_device(client, XCB_INPUT_DEVICE_ALL), nullptr));
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem;
         xcb_input_xi_device_info_next(&info)) {
        const QByteArray name(
            xcb_input_xi_device_info_name(info.data),
            xcb_input_xi_device_info_name_length(info.data));
        if (info.data->type == type && !name.contains("XTEST"))
            return static_cast<uint8_t>(info.data->deviceid);
    }
    throw std::runtime_error("the display lacks a device");
}

bool isAnythingDown(const XClient& client) {
    const Reply<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(client, xcb_query_keymap(client), nullptr));
    // The core protocol tells of five buttons only.
    const Reply<xcb_input_xi_query_pointer_reply_t> pointer(xcb_input_xi_query_pointer_reply(
        client,
        xcb_input_xi_query_pointer(
            client, client.root(), inputDevice(client, XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)),
        nullptr));
    const uint32_t* buttons = xcb_input_xi_query_pointer_buttons(pointer.get());
    const int words = xcb_input_xi_query_pointer_buttons_length(pointer.get());
    return std::any_of(buttons, buttons + words, [](uint32_t mask) { return mask != 0; }) ||
           std::ranges::any_of(keys->keys, [](uint8_t byte) { return byte != 0; });
}

bool isKeyboardFree(const XClient& client) {
    // The server looks for another holder first, and then at the window, which cannot get a grab.
    const xcb_window_t neverMapped = xcb_generate_id(client);
    xcb_create_window(
        client, 0, neverMapped, client.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto question = xcb_grab_keyboard(
        client, false, neverMapped, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_destroy_window(client, neverMapped);
    const Reply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(client, question, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_NOT_VIEWABLE;
}

} // namespace velmora::test
