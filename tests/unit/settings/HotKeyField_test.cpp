#include "settings/HotKeyField.h"

#include "foundation/UserDefaults.h"
#include "input/HotKeyManager.h"
#include "input/KeyCaptureNSView.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputGrants.h"
#include "support/Named.h"
#include "support/TestDisplay.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

constexpr EventFlags command = kCGEventFlagMaskCommand, option = kCGEventFlagMaskAlternate,
                     control = kCGEventFlagMaskControl, shift = kCGEventFlagMaskShift;

TEST(HotKeyField, TakesWhatHasAModifierAndSaysWhyNot) {
    const QTemporaryDir folder;
    UserDefaults defaults(folder.path() + u"/velmora.conf"_s);
    Preferences preferences(defaults);
    test::FakeInputGrants inputGrants;
    test::FakeAccessibility accessibility;
    HotKeyManager manager(preferences, inputGrants, accessibility);
    manager.setupHotKeys();
    HotKeyField field(preferences, manager, inputGrants);
    field.show();
    field.activateWindow();
    auto& view = *field.findChild<KeyCaptureNSView*>();
    auto& change = test::named<QPushButton>(field, u"hotkey_change_name"_s);
    auto& reset = test::named<QPushButton>(field, u"hotkey_reset_name"_s);
    const auto* note = field.findChild<QLabel*>();
    const auto isRecording = [&] { return inputGrants.grants.size() == 2; };

    const struct {
        KeyCode keyCode;
        EventFlags flags;
        QString characters;
        QString refused; ///< the note, where it is not taken
        bool ends;       ///< and the key alone ends the recording
        QString name;    ///< of the hot key afterwards
    } cases[] = {
        {0, 0, u"a"_s, u"hotkey_refused"_s, false, u"Alt+M"_s},
        {0, shift, u"A"_s, u"hotkey_refused"_s, false, u"Alt+M"_s},
        {96, 0, u"F5"_s, u"hotkey_refused"_s, false, u"Alt+M"_s},
        {kNoKeyCode, option, u"☃"_s, u"hotkey_refused"_s, false, u"Alt+M"_s},
        {53, 0, {}, u"hotkey_hint"_s, true, u"Alt+M"_s},
        {48, shift, {}, u"hotkey_hint"_s, true, u"Alt+M"_s},
        {12, option | shift, u"a"_s, {}, false, u"Alt+Shift+A"_s}, // where fr types an A
        {49, command, {}, {}, false, u"Super+Space"_s},
        {48, control, {}, {}, false, u"Ctrl+Tab"_s},
        {96, control, u"F5"_s, {}, false, u"Ctrl+F5"_s},
    };
    for (const auto& [keyCode, flags, characters, refused, ends, name] : cases) {
        SCOPED_TRACE(name.toStdString() + " " + std::to_string(keyCode));
        change.click();
        ASSERT_TRUE(waitFor([&] { return view.hasFocus() && isRecording(); }));
        EXPECT_EQ(note->text(), u"hotkey_recording"_s);
        if (flags)
            inputGrants.sendFlags(flags);
        inputGrants.sendKey(keyCode, flags, characters);
        if (!ends)
            inputGrants.send({.kind = KeyInput::Kind::flagsChanged, .isFresh = false});
        const bool goesOn = !refused.isEmpty() && !ends;
        EXPECT_TRUE(waitFor([&] { return isRecording() == goesOn; }));
        EXPECT_EQ(change.hasFocus(), !goesOn);
        EXPECT_EQ(note->text(), refused.isEmpty() ? u"hotkey_hint"_s : refused);
        EXPECT_EQ(preferences.hotKey().name(), name);
        EXPECT_EQ(view.spokenText(), name);
        change.setFocus();
    }
    EXPECT_EQ(preferences.hotKey().keyCode, 96);
    inputGrants.otherTakes({test::Input::hotKey});
    EXPECT_EQ(note->text(), u"grant_held_by_other"_s);
    reset.click();
    EXPECT_EQ(preferences.hotKey(), HotKey());
    EXPECT_FALSE(reset.isEnabled());
    inputGrants.otherTakes({});
    EXPECT_EQ(note->text(), u"hotkey_hint"_s);
}

} // namespace
