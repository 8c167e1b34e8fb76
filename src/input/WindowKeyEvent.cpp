#include "input/WindowKeyEvent.h"

#include "actions/KeyNames.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

// Qt's own name for Command's key on this platform is Meta.
constexpr std::pair<Qt::KeyboardModifier, EventFlags> modifierFlags[] = {
    {Qt::MetaModifier, kCGEventFlagMaskCommand},
    {Qt::AltModifier, kCGEventFlagMaskAlternate},
    {Qt::ControlModifier, kCGEventFlagMaskControl},
    {Qt::ShiftModifier, kCGEventFlagMaskShift},
};

/// Whether the key is Alt, which with Shift types Meta: to Qt that is Super.
bool isShiftedAlt(const QKeyEvent& event) {
    constexpr quint32 metaLeft = 0xffe7; // keysyms
    constexpr quint32 metaRight = 0xffe8;
    const quint32 keysym = event.nativeVirtualKey();
    return event.modifiers() & Qt::ShiftModifier && (keysym == metaLeft || keysym == metaRight);
}

/// The flag that the key itself stands for, 0 for a modifier without one; nothing for other keys.
std::optional<EventFlags> flagOfModifierKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Meta:
        return isShiftedAlt(event) ? kCGEventFlagMaskAlternate : kCGEventFlagMaskCommand;
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return kCGEventFlagMaskCommand;
    case Qt::Key_Alt:
        return kCGEventFlagMaskAlternate;
    case Qt::Key_Control:
        return kCGEventFlagMaskControl;
    case Qt::Key_Shift:
        return kCGEventFlagMaskShift;
    case Qt::Key_AltGr:
    case Qt::Key_Mode_switch:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return 0;
    default:
        return std::nullopt;
    }
}

QString nameOfPosition(const QKeyEvent& event) {
    // Digits by position, so that Shift does not matter. On Qt's Linux platforms the native scan
    // code is the XKB keycode, the kernel's code + 8: 10 to 19 are the keys 1 to 9 and 0.
    const quint32 scanCode = event.nativeScanCode();
    if (scanCode >= 10 && scanCode <= 19)
        return QString::number((scanCode - 9) % 10);
    switch (event.key()) {
    case Qt::Key_Return:
        return u"Return"_s;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return u"Tab"_s;
    case Qt::Key_Space:
        return u"Space"_s;
    case Qt::Key_Backspace:
        return u"Delete"_s;
    case Qt::Key_Escape:
        return u"Escape"_s;
    case Qt::Key_Left:
        return u"←"_s;
    case Qt::Key_Right:
        return u"→"_s;
    case Qt::Key_Down:
        return u"↓"_s;
    case Qt::Key_Up:
        return u"↑"_s;
    case Qt::Key_PageUp:
        return u"PageUp"_s;
    case Qt::Key_PageDown:
        return u"PageDown"_s;
    case Qt::Key_Home:
        return u"Home"_s;
    case Qt::Key_End:
        return u"End"_s;
    default:
        break;
    }
    if (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9)
        return QChar(event.key());
    return {};
}

/// What the key types, from Qt's code for it: below Key_Escape that is a character's code point.
QString characters(int key) {
    if (key == 0 || key == Qt::Key_unknown)
        return {};
    if (key >= Qt::Key_Escape)
        return QKeySequence(key).toString(QKeySequence::PortableText);
    const auto codePoint = static_cast<char32_t>(key);
    return QString::fromUcs4(&codePoint, 1);
}

} // namespace

std::optional<KeyInput> windowKeyEvent(const QKeyEvent& event) {
    KeyInput result;
    for (const auto& [modifier, flag] : modifierFlags) {
        if (event.modifiers() & modifier)
            result.flags |= flag;
    }
    if (isShiftedAlt(event)) {
        // Qt turns over the modifier that it takes the key for; in the native state Super is Mod4.
        constexpr quint32 superMask = 0x40;
        result.flags &= ~kCGEventFlagMaskCommand;
        if (event.nativeModifiers() & superMask)
            result.flags |= kCGEventFlagMaskCommand;
    }
    const bool isPress = event.type() == QEvent::KeyPress;
    if (const auto ownFlag = flagOfModifierKey(event)) {
        result.kind = KeyInput::Kind::flagsChanged;
        result.flags = isPress ? result.flags | *ownFlag : result.flags & ~*ownFlag;
        result.isFresh = isPress;
        return result;
    }
    if (!isPress)
        return std::nullopt;
    result.kind = KeyInput::Kind::keyDown;
    result.keyCode = KeyNames::keyCode(nameOfPosition(event)).value_or(kNoKeyCode);
    result.charactersIgnoringModifiers = characters(event.key());
    result.isFresh = !event.isAutoRepeat();
    return result;
}

} // namespace velmora
