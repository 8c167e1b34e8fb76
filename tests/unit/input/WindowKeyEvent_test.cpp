#include "input/WindowKeyEvent.h"

#include "input/CapturedKey.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr quint32 noScanCode = 0;

QString pressed(int key, Qt::KeyboardModifiers modifiers, quint32 scanCode = noScanCode) {
    const auto event = windowKeyEvent({QEvent::KeyPress, key, modifiers, scanCode, 0, 0});
    if (!event || event->type != EventType::keyDown)
        return u"nothing"_s;
    const QString name = CapturedKey::keyName(event->keyCode, event->charactersIgnoringModifiers);
    return CapturedKey::combinationText(CapturedKey::modifierNames(event->flags), name);
}

TEST(WindowKeyEventTest, PressesAreNamedAsThroughATap) {
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        quint32 scanCode;
        QString text;
    } cases[] = {
        {Qt::Key_N, Qt::MetaModifier | Qt::ShiftModifier, 57, u"⌘⇧N"_s},
        {Qt::Key_Exclam, Qt::ShiftModifier, 10, u"⇧1"_s},
        {Qt::Key_ParenRight, Qt::ShiftModifier, 19, u"⇧0"_s},
        {Qt::Key_5, Qt::KeypadModifier, 84, u"5"_s},
        {Qt::Key_7, {}, noScanCode, u"7"_s},
        {Qt::Key_Return, {}, 36, u"Return"_s},
        {Qt::Key_Backtab, Qt::ShiftModifier, 23, u"⇧Tab"_s},
        {Qt::Key_Space, Qt::ControlModifier, 65, u"⌃Space"_s},
        {Qt::Key_Backspace, {}, 22, u"Delete"_s},
        {Qt::Key_Left, {}, 113, u"←"_s},
        {Qt::Key_PageDown, {}, 117, u"PageDown"_s},
        {Qt::Key_End, {}, 115, u"End"_s},
        {Qt::Key_F5, Qt::MetaModifier, 71, u"⌘F5"_s},
        {0xE9, {}, 11 + 100, u"É"_s},
        {0x1F600, {}, 200, u"😀"_s},
        {0, {}, noScanCode, {}},
    };
    for (const auto& [key, modifiers, scanCode, text] : cases)
        EXPECT_EQ(pressed(key, modifiers, scanCode), text) << text.toStdString();
}

TEST(WindowKeyEventTest, ModifierKeysTellWhatIsHeldAfterwards) {
    const struct {
        QEvent::Type type;
        int key;
        Qt::KeyboardModifiers modifiers; ///< as the event carries them: on X11 those before it
        EventFlags flags;
    } cases[] = {
        {QEvent::KeyPress, Qt::Key_Super_L, {}, kCGEventFlagMaskCommand},
        {QEvent::KeyPress, Qt::Key_Meta, Qt::MetaModifier, kCGEventFlagMaskCommand},
        {QEvent::KeyRelease, Qt::Key_Super_R, Qt::MetaModifier, 0},
        {QEvent::KeyPress, Qt::Key_Shift, Qt::AltModifier,
         kCGEventFlagMaskAlternate | kCGEventFlagMaskShift},
        {QEvent::KeyRelease, Qt::Key_Shift, Qt::AltModifier | Qt::ShiftModifier,
         kCGEventFlagMaskAlternate},
        {QEvent::KeyPress, Qt::Key_CapsLock, Qt::ControlModifier, kCGEventFlagMaskControl},
        {QEvent::KeyPress, Qt::Key_AltGr, {}, 0},
    };
    for (const auto& [type, key, modifiers, flags] : cases) {
        SCOPED_TRACE(key);
        const auto event = windowKeyEvent({type, key, modifiers});
        ASSERT_TRUE(event);
        EXPECT_EQ(event->type, EventType::flagsChanged);
        EXPECT_EQ(event->flags, flags);
    }
    EXPECT_FALSE(windowKeyEvent({QEvent::KeyRelease, Qt::Key_A, {}}));
}

} // namespace
} // namespace velmora
