#include "platform/x11/keyboard/KeyLabels.h"

#include <algorithm>
#include <array>
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Accents as the dead keys show them, on their own.
QString accent(xkb_keysym_t deadKey) {
    struct Accent {
        xkb_keysym_t deadKey;
        char16_t character;
    };
    static constexpr std::array accents{
        Accent{XKB_KEY_dead_grave, u'`'},         Accent{XKB_KEY_dead_acute, u'´'},
        Accent{XKB_KEY_dead_circumflex, u'^'},    Accent{XKB_KEY_dead_tilde, u'~'},
        Accent{XKB_KEY_dead_macron, u'¯'},        Accent{XKB_KEY_dead_breve, u'˘'},
        Accent{XKB_KEY_dead_abovedot, u'˙'},      Accent{XKB_KEY_dead_diaeresis, u'¨'},
        Accent{XKB_KEY_dead_abovering, u'˚'},     Accent{XKB_KEY_dead_doubleacute, u'˝'},
        Accent{XKB_KEY_dead_caron, u'ˇ'},         Accent{XKB_KEY_dead_cedilla, u'¸'},
        Accent{XKB_KEY_dead_ogonek, u'˛'},        Accent{XKB_KEY_dead_iota, u'ͺ'},
        Accent{XKB_KEY_dead_voiced_sound, u'゛'}, Accent{XKB_KEY_dead_semivoiced_sound, u'゜'},
        Accent{XKB_KEY_dead_stroke, u'/'},        Accent{XKB_KEY_dead_belowdot, u'.'},
        Accent{XKB_KEY_dead_greek, u'µ'},         Accent{XKB_KEY_dead_currency, u'¤'},
    };
    const auto* found = std::ranges::find(accents, deadKey, &Accent::deadKey);
    return found == accents.end() ? QString() : QString(QChar(found->character));
}

QString character(xkb_keysym_t symbol) {
    const char32_t code = xkb_keysym_to_utf32(symbol);
    // Control characters are no label; an unbreakable or plain space is one.
    return code < 0x20 || code == 0x7f ? QString() : QString::fromUcs4(&code, 1);
}

QString name(xkb_keysym_t symbol) {
    // "Delete" is the name of another key, backspace, in stored actions.
    if (symbol == XKB_KEY_Delete || symbol == XKB_KEY_KP_Delete)
        return u"⌦"_s;
    if (symbol == XKB_KEY_KP_Enter)
        return u"Enter"_s;
    std::array<char, 64> text{};
    return xkb_keysym_get_name(symbol, text.data(), text.size()) > 0
               ? QString::fromLatin1(text.data())
               : QString();
}

} // namespace

KeyLabels KeyLabels::read(xcb_connection_t* connection) {
    const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
        xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES), &xkb_context_unref);
    const std::unique_ptr<xkb_keymap, Release> keymap(xkb_x11_keymap_new_from_device(
        context.get(), connection, xkb_x11_get_core_keyboard_device_id(connection),
        XKB_KEYMAP_COMPILE_NO_FLAGS));
    return keymap ? KeyLabels(keymap.get()) : KeyLabels();
}

KeyLabels::KeyLabels(xkb_keymap* keymap)
    : keymap_(xkb_keymap_ref(keymap)), state_(xkb_state_new(keymap)) {}

QString KeyLabels::label(xcb_keycode_t keycode, unsigned group, bool shift) const {
    const xkb_keysym_t typed = symbol(keycode, group, shift);
    if (typed == XKB_KEY_NoSymbol)
        return {};
    for (const QString& label :
         {keypadCharacter(keycode, group), accent(typed), character(typed)}) {
        if (!label.isEmpty())
            return label;
    }
    return name(typed);
}

bool KeyLabels::isModifier(xcb_keycode_t keycode, unsigned group) const {
    const xkb_keysym_t typed = symbol(keycode, group, false);
    return (typed >= XKB_KEY_Shift_L && typed <= XKB_KEY_Hyper_R) ||
           (typed >= XKB_KEY_ISO_Lock && typed <= XKB_KEY_ISO_Last_Group_Lock) ||
           (typed >= XKB_KEY_ISO_Level5_Shift && typed <= XKB_KEY_ISO_Level5_Lock) ||
           typed == XKB_KEY_Mode_switch || typed == XKB_KEY_Num_Lock;
}

xkb_keysym_t KeyLabels::symbol(xcb_keycode_t keycode, unsigned group, bool shift) const {
    if (!state_)
        return XKB_KEY_NoSymbol;
    constexpr xkb_mod_mask_t shiftBit = 1;
    xkb_state_update_mask(state_.get(), shift ? shiftBit : 0, 0, 0, 0, 0, group);
    const xkb_keysym_t* symbols = nullptr;
    return xkb_state_key_get_syms(state_.get(), keycode, &symbols) > 0 ? symbols[0]
                                                                       : XKB_KEY_NoSymbol;
}

QString KeyLabels::keypadCharacter(xcb_keycode_t keycode, unsigned group) const {
    const xkb_layout_index_t layouts = xkb_keymap_num_layouts_for_key(keymap_.get(), keycode);
    if (layouts == 0)
        return {};
    const xkb_layout_index_t layout = group % layouts;
    for (xkb_level_index_t level = 0;
         level < xkb_keymap_num_levels_for_key(keymap_.get(), keycode, layout); ++level) {
        const xkb_keysym_t* symbols = nullptr;
        if (xkb_keymap_key_get_syms_by_level(keymap_.get(), keycode, layout, level, &symbols) == 0)
            continue;
        if (symbols[0] >= XKB_KEY_KP_Multiply && symbols[0] <= XKB_KEY_KP_9)
            return character(symbols[0]);
    }
    return {};
}

} // namespace velmora
