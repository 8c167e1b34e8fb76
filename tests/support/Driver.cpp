#include "support/Driver.h"

#include "support/Desktop.h"

#include <algorithm>
#include <stdexcept>
#include <xcb/xinput.h>
#include <xcb/xtest.h>
#define explicit explicitModifiers // a member's name in this header
#include <xcb/xkb.h>
#undef explicit

namespace velmora::test {
namespace {

QHash<QByteArray, uint8_t> readKeycodes(const XClient& client) {
    Reply<xcb_xkb_use_extension_reply_t>(
        xcb_xkb_use_extension_reply(client, xcb_xkb_use_extension(client, 1, 0), nullptr));
    const Reply<xcb_xkb_get_names_reply_t> reply(xcb_xkb_get_names_reply(
        client, xcb_xkb_get_names(client, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_NAME_DETAIL_KEY_NAMES),
        nullptr));
    if (!reply)
        throw std::runtime_error("the keyboard has no names");
    xcb_xkb_get_names_value_list_t list;
    xcb_xkb_get_names_value_list_unpack(
        xcb_xkb_get_names_value_list(reply.get()), reply->nTypes, reply->indicators,
        reply->virtualMods, reply->groupNames, reply->nKeys, reply->nKeyAliases,
        reply->nRadioGroups, reply->which, &list);
    QHash<QByteArray, uint8_t> keycodes;
    for (int i = 0; i < reply->nKeys; ++i) {
        const QByteArray name(list.keyNames[i].name, qstrnlen(list.keyNames[i].name, 4));
        if (!name.isEmpty())
            keycodes.insert(name, static_cast<uint8_t>(reply->firstKey + i));
    }
    return keycodes;
}

} // namespace

Driver::Driver()
    : keycodes_(readKeycodes(client_)),
      physicalKeyboard_(inputDevice(client_, XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD)),
      inputEventBase_(xcb_get_extension_data(client_, &xcb_input_id)->first_event) {}

Driver::~Driver() {
    while (!held_.empty())
        release(held_.back());
}

void Driver::send(uint8_t type, uint8_t detail, uint8_t device) {
    xcb_test_fake_input(client_, type, detail, 0, client_.root(), 0, 0, device);
    client_.sync();
}

void Driver::press(uint8_t type, const Held& held) {
    held_.push_back(held);
    send(type, held.detail, held.device);
}

void Driver::release(const Held& held) {
    const Held copy = held;
    held_.erase(std::remove(held_.begin(), held_.end(), copy), held_.end());
    send(copy.releaseType, copy.detail, copy.device);
}

void Driver::move(int x, int y) {
    xcb_test_fake_input(
        client_, XCB_MOTION_NOTIFY, false, 0, client_.root(), static_cast<int16_t>(x),
        static_cast<int16_t>(y), 0);
    client_.sync();
}

void Driver::pressButton(uint8_t button) {
    press(XCB_BUTTON_PRESS, {XCB_BUTTON_RELEASE, button, 0});
}

void Driver::releaseButton(uint8_t button) {
    release({XCB_BUTTON_RELEASE, button, 0});
}

void Driver::click(uint8_t button) {
    pressButton(button);
    releaseButton(button);
}

Driver::Held Driver::heldKey(const QByteArray& position, Keyboard keyboard) const {
    // XTEST types on one certain device when the event is that extension's.
    if (keyboard == Keyboard::Physical)
        return {
            static_cast<uint8_t>(inputEventBase_ + XCB_INPUT_DEVICE_KEY_RELEASE), keycode(position),
            physicalKeyboard_};
    return {XCB_KEY_RELEASE, keycode(position), 0};
}

void Driver::pressKey(const QByteArray& position, Keyboard keyboard) {
    const uint8_t type = keyboard == Keyboard::Physical
                             ? static_cast<uint8_t>(inputEventBase_ + XCB_INPUT_DEVICE_KEY_PRESS)
                             : static_cast<uint8_t>(XCB_KEY_PRESS);
    press(type, heldKey(position, keyboard));
}

void Driver::releaseKey(const QByteArray& position, Keyboard keyboard) {
    release(heldKey(position, keyboard));
}

void Driver::tapKey(const QByteArray& position, Keyboard keyboard) {
    pressKey(position, keyboard);
    releaseKey(position, keyboard);
}

void Driver::tapChord(const QByteArray& modifier, const QByteArray& position) {
    pressKey(modifier);
    tapKey(position);
    releaseKey(modifier);
}

uint8_t Driver::keycode(const QByteArray& position) const {
    const uint8_t keycode = keycodes_.value(position);
    if (keycode == 0)
        throw std::runtime_error("no key is called " + position.toStdString());
    return keycode;
}

} // namespace velmora::test
