#include "platform/x11/keyboard/KeyPositions.h"

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/base/Xcb.h"

#include <QHash>
#include <algorithm>

namespace velmora {
namespace {

/// XKB's names of positions (rows E to A from the top, keys from the left) and their codes.
const QHash<QByteArray, KeyCode>& codesByName() {
    static const QHash<QByteArray, KeyCode> codes{
        // the digit row
        {"TLDE", 50},
        {"AE01", 18},
        {"AE02", 19},
        {"AE03", 20},
        {"AE04", 21},
        {"AE05", 23},
        {"AE06", 22},
        {"AE07", 26},
        {"AE08", 28},
        {"AE09", 25},
        {"AE10", 29},
        {"AE11", 27},
        {"AE12", 24},
        {"AE13", 93}, // yen, on Japanese keyboards
        {"BKSP", 51},
        // Q to P
        {"TAB", 48},
        {"AD01", 12},
        {"AD02", 13},
        {"AD03", 14},
        {"AD04", 15},
        {"AD05", 17},
        {"AD06", 16},
        {"AD07", 32},
        {"AD08", 34},
        {"AD09", 31},
        {"AD10", 35},
        {"AD11", 33},
        {"AD12", 30},
        {"BKSL", 42},
        // A to L
        {"CAPS", 57},
        {"AC01", 0},
        {"AC02", 1},
        {"AC03", 2},
        {"AC04", 3},
        {"AC05", 5},
        {"AC06", 4},
        {"AC07", 38},
        {"AC08", 40},
        {"AC09", 37},
        {"AC10", 41},
        {"AC11", 39},
        {"RTRN", 36},
        // Z to M
        {"LFSH", 56},
        {"LSGT", 10}, // beside the left Shift, on ISO keyboards
        {"AB01", 6},
        {"AB02", 7},
        {"AB03", 8},
        {"AB04", 9},
        {"AB05", 11},
        {"AB06", 45},
        {"AB07", 46},
        {"AB08", 43},
        {"AB09", 47},
        {"AB10", 44},
        {"AB11", 94}, // underscore, on Japanese keyboards
        {"RTSH", 60},
        // the bottom row
        {"LCTL", 59},
        {"LWIN", 55},
        {"LALT", 58},
        {"MUHE", 102}, // left of the space bar, on Japanese keyboards
        {"SPCE", 49},
        {"HENK", 104}, // right of it
        {"RALT", 61},
        {"RWIN", 54},
        {"COMP", 110},
        {"RCTL", 62},
        // the function row; F13 to F15 carry other labels on this platform's keyboards
        {"ESC", 53},
        {"FK01", 122},
        {"FK02", 120},
        {"FK03", 99},
        {"FK04", 118},
        {"FK05", 96},
        {"FK06", 97},
        {"FK07", 98},
        {"FK08", 100},
        {"FK09", 101},
        {"FK10", 109},
        {"FK11", 103},
        {"FK12", 111},
        {"PRSC", 105},
        {"SCLK", 107},
        {"PAUS", 113},
        {"FK16", 106},
        {"FK17", 64},
        {"FK18", 79},
        {"FK19", 80},
        {"FK20", 90},
        // navigation
        {"INS", 114},
        {"HOME", 115},
        {"PGUP", 116},
        {"DELE", 117},
        {"END", 119},
        {"PGDN", 121},
        {"LEFT", 123},
        {"RGHT", 124},
        {"DOWN", 125},
        {"UP", 126},
        // the keypad
        {"NMLK", 71},
        {"KPEQ", 81},
        {"KPDV", 75},
        {"KPMU", 67},
        {"KPSU", 78},
        {"KPAD", 69},
        {"KPEN", 76},
        {"KPDL", 65},
        {"KP0", 82},
        {"KP1", 83},
        {"KP2", 84},
        {"KP3", 85},
        {"KP4", 86},
        {"KP5", 87},
        {"KP6", 88},
        {"KP7", 89},
        {"KP8", 91},
        {"KP9", 92},
    };
    return codes;
}

/// Names are four bytes, padded with zeros.
QByteArray text(const char (&name)[4]) {
    return {name, static_cast<qsizetype>(qstrnlen(name, sizeof name))};
}

} // namespace

KeyPositions KeyPositions::read(xcb_connection_t* connection) {
    const auto cookie = xcb_xkb_get_names(
        connection, XCB_XKB_ID_USE_CORE_KBD,
        XCB_XKB_NAME_DETAIL_KEY_NAMES | XCB_XKB_NAME_DETAIL_KEY_ALIASES);
    const XcbOwned<xcb_xkb_get_names_reply_t> reply(
        xcb_xkb_get_names_reply(connection, cookie, nullptr));
    if (!reply)
        return {};
    xcb_xkb_get_names_value_list_t list;
    xcb_xkb_get_names_value_list_unpack(
        xcb_xkb_get_names_value_list(reply.get()), reply->nTypes, reply->indicators,
        reply->virtualMods, reply->groupNames, reply->nKeys, reply->nKeyAliases,
        reply->nRadioGroups, reply->which, &list);
    KeyPositions positions;
    QHash<QByteArray, xcb_keycode_t> keycodes;
    for (int i = 0; i < reply->nKeys; ++i) {
        const auto keycode = static_cast<xcb_keycode_t>(reply->firstKey + i);
        keycodes.insert(text(list.keyNames[i].name), keycode);
        positions.add(text(list.keyNames[i].name), keycode);
    }
    for (int i = 0; i < reply->nKeyAliases; ++i)
        positions.add(
            text(list.keyAliases[i].alias), keycodes.value(text(list.keyAliases[i].real)));
    return positions;
}

void KeyPositions::add(const QByteArray& name, xcb_keycode_t keycode) {
    const auto code = codesByName().constFind(name);
    if (code != codesByName().constEnd() && keycodes_[*code] == 0)
        keycodes_[*code] = keycode;
}

std::optional<xcb_keycode_t> KeyPositions::keycode(KeyCode keyCode) const {
    if (keyCode >= keycodes_.size() || keycodes_[keyCode] == 0)
        return std::nullopt;
    return keycodes_[keyCode];
}

std::optional<KeyCode> KeyPositions::position(xcb_keycode_t keycode) const {
    const auto found = std::ranges::find(keycodes_, keycode);
    if (keycode == 0 || found == keycodes_.end())
        return std::nullopt;
    return static_cast<KeyCode>(found - keycodes_.begin());
}

} // namespace velmora
