#include "input/WindowKeyEvent.h"

#include "input/CapturedKey.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The event in symbols: of a key its name as well, of a modifier what is held after it.
QString described(const QKeyEvent& keyEvent) {
    const auto event = windowKeyEvent(keyEvent);
    if (!event)
        return u"nothing"_s;
    return CapturedKey::combinationSymbols(
        CapturedKey::modifierNames(event->flags),
        event->kind == KeyInput::Kind::flagsChanged
            ? u"…"_s
            : CapturedKey::keyName(event->keyCode, event->charactersIgnoringModifiers));
}

TEST(WindowKeyEventTest, KeysAreNamedAsInAGrant) {
    const auto press = QEvent::KeyPress;
    const auto release = QEvent::KeyRelease;
    const Qt::KeyboardModifiers none, shift = Qt::ShiftModifier, alt = Qt::AltModifier,
                                      super = Qt::MetaModifier;
    const struct {
        QEvent::Type type;
        int key;
        Qt::KeyboardModifiers modifiers; ///< before the event
        quint32 scanCode;
        QString expected;
        quint32 keysym = 0;
        quint32 state = 0; ///< of X11 before the event
    } cases[] = {
        {press, Qt::Key_N, super | shift, 57, u"⌘⇧N"_s},
        {press, Qt::Key_ParenRight, shift, 19, u"⇧0"_s},
        {press, Qt::Key_Backtab, shift, 23, u"⇧Tab"_s},
        {press, Qt::Key_Backspace, none, 22, u"Delete"_s},
        {press, 0xE9, none, 11 + 100, u"É"_s},
        {press, 0, none, 0, {}},
        {release, Qt::Key_A, none, 38, u"nothing"_s},
        {press, Qt::Key_Meta, shift, 133, u"⌘⇧…"_s, 0xffeb, 0x01},
        {release, Qt::Key_Super_R, super, 134, u"…"_s},
        // Alt after Shift types Meta, which Qt takes for Super.
        {press, Qt::Key_Meta, shift, 64, u"⌥⇧…"_s, 0xffe7, 0x01},
        {press, Qt::Key_Meta, shift | super, 64, u"⌘⌥⇧…"_s, 0xffe7, 0x41},
        {release, Qt::Key_Meta, shift | alt, 108, u"⇧…"_s, 0xffe8, 0x09},
        {release, Qt::Key_Shift, alt | shift, 50, u"⌥…"_s},
        {press, Qt::Key_AltGr, none, 108, u"…"_s},
    };
    for (const auto& [type, key, modifiers, scanCode, expected, keysym, state] : cases)
        EXPECT_EQ(described({type, key, modifiers, scanCode, keysym, state}), expected)
            << expected.toStdString() << ' ' << key;
}

} // namespace
} // namespace velmora
