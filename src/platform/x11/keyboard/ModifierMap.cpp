#include "platform/x11/keyboard/ModifierMap.h"

#include "platform/x11/base/X11Connection.h"

#include <algorithm>
#include <span>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace velmora {
namespace {

constexpr uint8_t bit(size_t row) {
    return static_cast<uint8_t>(1U << row);
}

/// The modifiers, Mod1 to Mod5, that have a key typing one of two symbols; 0 when none has.
template<typename Symbols>
uint8_t
rowWith(const ModifierMap::Rows& rows, const Symbols& symbolsOf, xcb_keysym_t a, xcb_keysym_t b) {
    for (size_t row = 3; row < rows.size(); ++row) {
        for (const xcb_keycode_t keycode : rows[row]) {
            if (std::ranges::any_of(
                    symbolsOf(keycode), [=](auto symbol) { return symbol == a || symbol == b; }))
                return bit(row);
        }
    }
    return 0;
}

} // namespace

ModifierMap ModifierMap::read(xcb_connection_t* connection) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const auto rowsCookie = xcb_get_modifier_mapping(connection);
    const auto symbolsCookie = xcb_get_keyboard_mapping(
        connection, setup->min_keycode,
        static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    const XcbOwned<xcb_get_modifier_mapping_reply_t> rows(
        xcb_get_modifier_mapping_reply(connection, rowsCookie, nullptr));
    const XcbOwned<xcb_get_keyboard_mapping_reply_t> symbols(
        xcb_get_keyboard_mapping_reply(connection, symbolsCookie, nullptr));
    ModifierMap map;
    if (!rows || !symbols)
        return map;

    const xcb_keycode_t* next = xcb_get_modifier_mapping_keycodes(rows.get());
    for (auto& row : map.rows_) {
        std::copy_if(
            next, next + rows->keycodes_per_modifier, std::back_inserter(row),
            [](xcb_keycode_t keycode) { return keycode != 0; });
        next += rows->keycodes_per_modifier;
    }

    const xcb_keysym_t* all = xcb_get_keyboard_mapping_keysyms(symbols.get());
    const auto symbolsOf = [&](xcb_keycode_t keycode) {
        const size_t width = symbols->keysyms_per_keycode;
        return std::span(all + (keycode - setup->min_keycode) * width, width);
    };
    const auto find = [&](uint8_t& modifier, xcb_keysym_t a, xcb_keysym_t b) {
        if (const uint8_t found = rowWith(map.rows_, symbolsOf, a, b))
            modifier = found;
    };
    find(map.alt_, XKB_KEY_Alt_L, XKB_KEY_Alt_R);
    find(map.super_, XKB_KEY_Super_L, XKB_KEY_Super_R);
    find(map.numLock_, XKB_KEY_Num_Lock, XKB_KEY_Num_Lock);
    for (int keycode = setup->max_keycode; keycode >= setup->min_keycode; --keycode) {
        const auto candidate = static_cast<xcb_keycode_t>(keycode);
        if (std::ranges::all_of(symbolsOf(candidate), [](auto symbol) { return symbol == 0; }))
            map.silentKey_ = candidate;
    }
    return map;
}

uint8_t ModifierMap::mask(EventFlags flags) const {
    unsigned mask = 0;
    if (flags & kCGEventFlagMaskShift)
        mask |= XCB_MOD_MASK_SHIFT;
    if (flags & kCGEventFlagMaskControl)
        mask |= XCB_MOD_MASK_CONTROL;
    if (flags & kCGEventFlagMaskAlternate)
        mask |= alt_;
    if (flags & kCGEventFlagMaskCommand)
        mask |= super_;
    return static_cast<uint8_t>(mask);
}

EventFlags ModifierMap::flags(uint8_t mask) const {
    return (mask & XCB_MOD_MASK_SHIFT ? kCGEventFlagMaskShift : 0) |
           (mask & XCB_MOD_MASK_CONTROL ? kCGEventFlagMaskControl : 0) |
           (mask & alt_ ? kCGEventFlagMaskAlternate : 0) |
           (mask & super_ ? kCGEventFlagMaskCommand : 0);
}

std::vector<xcb_keycode_t> ModifierMap::keysDown(const uint8_t (&keymap)[32]) const {
    std::vector<xcb_keycode_t> down;
    for (const auto& row : rows_)
        std::ranges::copy_if(row, std::back_inserter(down), [&](xcb_keycode_t keycode) {
            return isDown(keymap, keycode);
        });
    return down;
}

std::vector<xcb_keycode_t> ModifierMap::keysFor(uint8_t mask) const {
    std::vector<xcb_keycode_t> keys;
    for (size_t row = 0; row < rows_.size(); ++row) {
        if ((mask & bit(row)) && !rows_[row].empty())
            keys.push_back(rows_[row].front());
    }
    return keys;
}

bool ModifierMap::isLockKey(xcb_keycode_t keycode) const {
    for (size_t row = 0; row < rows_.size(); ++row) {
        if ((bit(row) & (XCB_MOD_MASK_LOCK | numLock_)) &&
            std::ranges::find(rows_[row], keycode) != rows_[row].end())
            return true;
    }
    return false;
}

} // namespace velmora
