#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "support/FakeInputGrants.h"
#include "support/TestDisplay.h"
#include "viewkit/PlainButton.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr EventFlags command = kCGEventFlagMaskCommand, option = kCGEventFlagMaskAlternate,
                     control = kCGEventFlagMaskControl, shift = kCGEventFlagMaskShift;

/// The control in a window between two fields, as an editor keeps it.
class KeyCaptureTest : public testing::Test {
protected:
    void SetUp() override {
        auto* stack = new QVBoxLayout(&*window_);
        for (QWidget* view : std::initializer_list<QWidget*>{other_, capture_, next_})
            stack->addWidget(view);
        showFocused();
    }

    void showFocused() {
        window_->show();
        window_->activateWindow();
        *isFocused_ = true;
        ASSERT_TRUE(
            test::waitFor([&] { return view().hasFocus() && !inputGrants_.grants.empty(); }));
    }

    void focusUngranted() {
        other_->setFocus();
        inputGrants_.offers = false;
        view().setFocus();
    }

    KeyCaptureNSView& view() { return capture_->view(); }

    bool
    send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}, bool repeat = false) {
        QKeyEvent event(type, key, modifiers, {}, repeat);
        return QApplication::sendEvent(QApplication::focusWidget(), &event) && event.isAccepted();
    }

    /// What is in sight under that accessible role.
    QStringList inSight(QAccessible::Role role) {
        QStringList names;
        for (auto* widget : window_->findChildren<QWidget*>()) {
            QAccessibleInterface* known = QAccessible::queryAccessibleInterface(widget);
            if (known->role() == role && !known->state().invisible)
                names << known->text(QAccessible::Name);
        }
        return names;
    }

    /// What is bound, and shown as well: "Command+Shift N".
    QString combination() {
        EXPECT_EQ(view().currentModifiers(), modifiers_->value());
        EXPECT_EQ(view().currentKey(), key_->value());
        return modifiers_->value().join(u'+') + u' ' + key_->value();
    }

    test::FakeInputGrants inputGrants_;
    const Binding<QStringList> modifiers_ = std::make_shared<QProperty<QStringList>>();
    const Binding<QString> key_ = std::make_shared<QProperty<QString>>();
    const Binding<bool> isFocused_ = std::make_shared<QProperty<bool>>();
    std::optional<QWidget> window_{std::in_place};
    QLineEdit* other_ = new QLineEdit;
    QLineEdit* next_ = new QLineEdit;
    KeyCaptureView* capture_ = new KeyCaptureView(modifiers_, key_, isFocused_, inputGrants_);
};

TEST_F(KeyCaptureTest, NamesWhatIsPressed) {
    const struct {
        KeyCode keyCode;
        EventFlags flags;
        QString characters;
        QString expected;
    } cases[] = {
        {0, command | option | control | shift, u"A"_s, u"Command+Option+Control+Shift A"_s},
        {0, 0x10000 | 0x200000 | 0x800000, u"A"_s, u" A"_s},
        {12, 0, u"a"_s, u" A"_s}, // a layout with A where the US layout has Q
        {18, shift, u"!"_s, u"Shift 1"_s},
        {126, control, {}, u"Control ↑"_s},
        {36, 0, u"\r"_s, u" Return"_s},
        {53, 0, u"\x1b"_s, u" Escape"_s},
        {27, 0, u"ß"_s, u" SS"_s},
        {43, shift, u"<"_s, u"Shift <"_s},
        {200, option, {}, u"Option "_s},
    };
    for (const auto& [keyCode, flags, characters, expected] : cases) {
        SCOPED_TRACE(expected.toStdString());
        EXPECT_TRUE(inputGrants_.sendKey(keyCode, flags, characters));
        EXPECT_EQ(combination(), expected);
        EXPECT_TRUE(view().hasFocus());
    }
}

TEST_F(KeyCaptureTest, PreviewsHeldModifiersUntilAKeyIsCaptured) {
    for (const auto& [flags, expected] :
         {std::pair(command, u"Command "_s),
          {command | shift, u"Command+Shift "_s},
          {shift, u"Shift "_s},
          {0, u"Shift "_s},
          {option, u"Option "_s}}) {
        EXPECT_TRUE(inputGrants_.sendFlags(flags));
        EXPECT_EQ(combination(), expected);
    }
    inputGrants_.sendKey(45, option | shift, u"N"_s);
    // Released in any order, and pressed again.
    for (const EventFlags flags : {option, EventFlags(0), shift, EventFlags(0), command}) {
        EXPECT_TRUE(inputGrants_.sendFlags(flags));
        EXPECT_EQ(combination(), u"Option+Shift N"_s);
    }
    inputGrants_.sendKey(8, command, u"c"_s);
    EXPECT_EQ(combination(), u"Command C"_s) << "another key replaces the capture";
}

TEST_F(KeyCaptureTest, SaysWhatItHoldsAndClearingKeepsTheFocus) {
    const QStringList hint{u"例: ⌘C, ⌥⇧N, ⌃⌘Space"_s};
    const QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&view());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(combination(), u" "_s);
        EXPECT_EQ(inSight(QAccessible::StaticText), hint);
        EXPECT_EQ(inSight(QAccessible::Button), QStringList());
        inputGrants_.sendFlags(command);
        EXPECT_EQ(field->text(QAccessible::Value), u"Super"_s);
        EXPECT_EQ(inSight(QAccessible::Button), QStringList{u"クリア"_s}) << "of modifiers, too";
        inputGrants_.sendKey(45, command | shift, u"n"_s);
        EXPECT_EQ(inSight(QAccessible::StaticText), QStringList());
        EXPECT_EQ(field->role(), QAccessible::HotkeyField);
        EXPECT_EQ(field->text(QAccessible::Name), u"label_key_combo"_s);
        EXPECT_EQ(field->text(QAccessible::Description), u"Super+Shift+N, key_capture_leave"_s);
        capture_->findChild<PlainButton*>()->click();
    }
    EXPECT_TRUE(view().hasFocus());
    inputGrants_.sendFlags(control);
    EXPECT_EQ(combination(), u"Control "_s);
}

TEST_F(KeyCaptureTest, TakesNothingOfKeysThatWereDownBefore) {
    const auto stale = [&](KeyInput::Kind kind, EventFlags flags, KeyCode code = 0) {
        return inputGrants_.send({.kind = kind, .keyCode = code, .flags = flags, .isFresh = false});
    };
    const auto down = KeyInput::Kind::keyDown, changed = KeyInput::Kind::flagsChanged;
    int answered = 0;
    view().onDefaultKey = [&] { ++answered; };
    EXPECT_TRUE(stale(down, 0, 36)) << "swallowed all the same";
    EXPECT_TRUE(stale(down, command, 8));
    EXPECT_TRUE(stale(changed, shift));
    EXPECT_EQ(combination(), u" "_s);
    inputGrants_.sendFlags(command | shift);
    EXPECT_TRUE(stale(changed, shift));
    EXPECT_EQ(combination(), u"Shift "_s) << "of a press that was seen";
    inputGrants_.sendKey(8, command, u"c"_s);
    EXPECT_TRUE(stale(down, command, 9));
    EXPECT_TRUE(stale(down, 0, 36));
    QCoreApplication::processEvents();
    EXPECT_EQ(combination(), u"Command C"_s);
    EXPECT_EQ(answered, 0);

    focusUngranted();
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_Return, {}, true));
    EXPECT_TRUE(send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier | Qt::AltModifier));
    EXPECT_EQ(combination(), u"Command C"_s);
    EXPECT_EQ(answered, 0);
}

TEST_F(KeyCaptureTest, TabTwiceLeavesWithWhatWasThere) {
    const auto tellsWayOut = [&] {
        return inSight(QAccessible::StaticText).contains(u"key_capture_leave"_s);
    };
    const QWidget* clear = capture_->findChild<PlainButton*>();
    const struct {
        QList<EventFlags> tabs; ///< with these modifiers
        const QWidget* reached;
    } cases[] = {
        {{0, 0}, clear},        {{shift, shift}, other_},      {{0, shift, shift}, other_},
        {{shift, 0, 0}, clear}, {{control, control}, &view()},
    };
    for (const QString& key : {u"L"_s, QString()}) {
        for (const auto& [tabs, reached] : cases) {
            SCOPED_TRACE(testing::PrintToString(tabs) + key.toStdString());
            *modifiers_ = key.isEmpty() ? QStringList() : QStringList{u"Hyper"_s};
            *key_ = key;
            *isFocused_ = true;
            const QString before = combination();
            for (qsizetype i = 0; i < tabs.size(); ++i) {
                EXPECT_EQ(tellsWayOut(), i > 0 && reached != &view());
                inputGrants_.sendFlags(tabs[i]);
                inputGrants_.sendKey(48, tabs[i], u"\t"_s);
                inputGrants_.sendFlags(0);
            }
            const QWidget* next = reached == clear && key.isEmpty() ? next_ : reached;
            EXPECT_EQ(QApplication::focusWidget(), next);
            EXPECT_EQ(combination(), next == &view() ? u"Control Tab"_s : before);
            EXPECT_FALSE(tellsWayOut());
        }
    }
    inputGrants_.sendKey(48);
    inputGrants_.sendKey(0, command, u"a"_s);
    EXPECT_FALSE(tellsWayOut()) << "no way out of another key";
    inputGrants_.sendKey(48);
    inputGrants_.sendKey(48);
    EXPECT_EQ(combination(), u"Command A"_s);
}

TEST_F(KeyCaptureTest, LosingTheFocusInAnyWayGivesTheKeysBackAtOnce) {
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"another field", [&] { other_->setFocus(); }},
        {"the flag", [&] { *isFocused_ = false; }},
        {"hidden", [&] { capture_->hide(); }},
        {"closed", [&] { window_->close(); }},
        {"disabled", [&] { capture_->setEnabled(false); }},
    };
    for (const auto& [name, lose] : ways) {
        SCOPED_TRACE(name);
        lose();
        EXPECT_TRUE(inputGrants_.grants.empty());
        EXPECT_FALSE(isFocused_->value());
        capture_->setEnabled(true);
        capture_->show();
        showFocused();
    }
    window_.reset();
    EXPECT_TRUE(inputGrants_.grants.empty());
    EXPECT_FALSE(isFocused_->value());
}

TEST_F(KeyCaptureTest, TakesTheKeysOfItsWindowWhereItIsGrantedNothing) {
    focusUngranted();
    int triggered = 0;
    for (const auto& keys : {u"Ctrl+K"_s, u"Esc"_s, u"Return"_s})
        new QShortcut(keys, &*window_, [&] { ++triggered; });
    EXPECT_TRUE(send(QEvent::ShortcutOverride, Qt::Key_K, Qt::ControlModifier));
    EXPECT_EQ(combination(), u" "_s) << "the press itself follows";
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_Control));
    EXPECT_EQ(combination(), u"Control "_s);
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier));
    EXPECT_TRUE(send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier));
    EXPECT_TRUE(send(QEvent::KeyRelease, Qt::Key_K));
    EXPECT_EQ(combination(), u"Control K"_s);
    for (const int key : {Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Return}) {
        EXPECT_TRUE(send(QEvent::KeyPress, key));
        EXPECT_TRUE(view().hasFocus());
    }
    EXPECT_EQ(combination(), u" Return"_s);
    EXPECT_EQ(triggered, 0);
}

TEST_F(KeyCaptureTest, HandlesAPressOnceThoughItComesTwice) {
    QStringList changes;
    const auto notifier = key_->addNotifier([&] { changes << key_->value(); });
    inputGrants_.sendKey(45, command, u"n"_s);
    // Named by what the window sees, this would be another key.
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_B, Qt::MetaModifier));
    EXPECT_EQ(changes, QStringList{u"N"_s});
    inputGrants_.otherTakes({test::Input::everyKey});
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_B, Qt::MetaModifier));
    EXPECT_EQ(changes, (QStringList{u"N"_s, u"B"_s}));
    inputGrants_.otherTakes({});
    const auto closing = key_->addNotifier([&] { capture_->hide(); });
    EXPECT_TRUE(inputGrants_.sendKey(2, command, u"d"_s)) << "its owner closes it meanwhile";
    EXPECT_TRUE(inputGrants_.grants.empty());
}

} // namespace
} // namespace velmora
