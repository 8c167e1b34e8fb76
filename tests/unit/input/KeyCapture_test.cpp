#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "support/FakeEventTaps.h"
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

constexpr EventFlags command = kCGEventFlagMaskCommand;
constexpr EventFlags option = kCGEventFlagMaskAlternate;
constexpr EventFlags control = kCGEventFlagMaskControl;
constexpr EventFlags shift = kCGEventFlagMaskShift;

/// The control in a window with another field, as an editor keeps it.
class KeyCaptureTest : public testing::Test {
protected:
    void SetUp() override {
        auto* stack = new QVBoxLayout(&*window_);
        stack->addWidget(other_);
        stack->addWidget(capture_);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(test::waitFor([&] { return view().hasFocus(); }));
    }

    KeyCaptureNSView& view() { return capture_->view(); }

    bool send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(type, key, modifiers);
        return QApplication::sendEvent(QApplication::focusWidget(), &event) && event.isAccepted();
    }

    /// What is bound, and shown as well: "Command+Shift N".
    QString combination() {
        EXPECT_EQ(view().currentModifiers(), modifiers_->value());
        EXPECT_EQ(view().currentKey(), key_->value());
        return modifiers_->value().join(u'+') + u' ' + key_->value();
    }

    test::FakeEventTaps taps_;
    const Binding<QStringList> modifiers_ = std::make_shared<QProperty<QStringList>>();
    const Binding<QString> key_ = std::make_shared<QProperty<QString>>();
    const Binding<bool> isFocused_ = std::make_shared<QProperty<bool>>();
    std::optional<QWidget> window_{std::in_place};
    QLineEdit* other_ = new QLineEdit;
    KeyCaptureView* capture_ = new KeyCaptureView(modifiers_, key_, isFocused_, taps_);
};

TEST_F(KeyCaptureTest, NamesWhatIsPressed) {
    const struct {
        KeyCode keyCode;
        EventFlags flags;
        QString characters;
        QString expected;
    } cases[] = {
        {45, command | shift, u"N"_s, u"Command+Shift N"_s},
        {0, command | option | control | shift, u"A"_s, u"Command+Option+Control+Shift A"_s},
        {0, 0x10000 | 0x200000 | 0x800000, u"A"_s, u" A"_s},
        {12, 0, u"a"_s, u" A"_s}, // a layout with A where the US layout has Q
        {18, shift, u"!"_s, u"Shift 1"_s},
        {126, control, {}, u"Control ↑"_s},
        {36, 0, u"\r"_s, u" Return"_s},
        {53, 0, u"\x1b"_s, u" Escape"_s},
        {96, 0, u"F5"_s, u" F5"_s},
        {27, 0, u"ß"_s, u" SS"_s},
        {43, shift, u"<"_s, u"Shift <"_s},
        {200, option, {}, u"Option "_s},
    };
    for (const auto& [keyCode, flags, characters, expected] : cases) {
        SCOPED_TRACE(expected.toStdString());
        EXPECT_TRUE(taps_.sendKey(keyCode, flags, characters));
        EXPECT_EQ(combination(), expected);
        EXPECT_TRUE(view().hasFocus());
    }
}

TEST_F(KeyCaptureTest, PreviewsHeldModifiersUntilAKeyIsCaptured) {
    const struct {
        EventFlags flags;
        QString expected;
    } previews[] = {
        {command, u"Command "_s}, {command | shift, u"Command+Shift "_s},
        {shift, u"Shift "_s},     {0, u"Shift "_s}, // letting go leaves the last preview
        {option, u"Option "_s},
    };
    for (const auto& [flags, expected] : previews) {
        EXPECT_TRUE(taps_.sendFlags(flags));
        EXPECT_EQ(combination(), expected);
    }
    taps_.sendKey(45, option | shift, u"N"_s);
    // Released in any order, and pressed again.
    for (const EventFlags flags : {option, EventFlags(0), shift, EventFlags(0), command}) {
        EXPECT_TRUE(taps_.sendFlags(flags));
        EXPECT_EQ(combination(), u"Option+Shift N"_s);
    }
    taps_.sendKey(8, command, u"c"_s);
    EXPECT_EQ(combination(), u"Command C"_s) << "another key replaces the capture";
}

TEST_F(KeyCaptureTest, ClearingBeginsAnewWithTheFocusKept) {
    const auto* hint = capture_->findChild<QLabel*>();
    auto* clear = capture_->findChild<PlainButton*>();
    EXPECT_TRUE(hint->isVisible());
    EXPECT_FALSE(clear->isVisible());

    taps_.sendFlags(command);
    EXPECT_TRUE(clear->isVisible()) << "modifiers alone count";
    taps_.sendKey(45, command, u"n"_s);
    EXPECT_FALSE(hint->isVisible());
    clear->click();
    EXPECT_EQ(combination(), u" "_s);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_FALSE(clear->isVisible());
    EXPECT_TRUE(view().hasFocus());
    taps_.sendFlags(control);
    EXPECT_EQ(combination(), u"Control "_s);
}

TEST_F(KeyCaptureTest, LosingTheFocusInAnyWayGivesTheKeysBackAtOnce) {
    const auto regain = [&] {
        view().window()->show();
        view().window()->activateWindow();
        *isFocused_ = true;
        return test::waitFor([&] { return view().hasFocus() && !taps_.taps.empty(); });
    };
    QWidget elsewhere;
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"another field", [&] { other_->setFocus(); }},
        {"the flag", [&] { *isFocused_ = false; }},
        {"hidden", [&] { capture_->hide(); }},
        {"closed", [&] { window_->close(); }},
        {"disabled", [&] { capture_->setEnabled(false); }},
        {"window deactivated",
         [&] {
             elsewhere.show();
             elsewhere.activateWindow();
             test::waitFor([&] { return QApplication::activeWindow() == &elsewhere; });
         }},
    };
    for (const auto& [name, lose] : ways) {
        SCOPED_TRACE(name);
        const auto handler = taps_.taps.front()->handler;
        lose();
        EXPECT_TRUE(taps_.taps.empty());
        EXPECT_FALSE(isFocused_->value());
        EXPECT_FALSE(taps_.sendKey(45, command, u"n"_s));
        EXPECT_TRUE(handler(EventType::keyDown, {.type = EventType::keyDown, .keyCode = 45}))
            << "on its way when the focus went";
        EXPECT_EQ(combination(), u" "_s);
        capture_->setEnabled(true);
        capture_->show();
        ASSERT_TRUE(regain());
        EXPECT_TRUE(isFocused_->value());
    }
    window_.reset();
    EXPECT_TRUE(taps_.taps.empty());
    EXPECT_FALSE(isFocused_->value());
}

TEST_F(KeyCaptureTest, TakesTheKeysOfItsWindowWhereThereIsNoTap) {
    other_->setFocus();
    taps_.allowsTaps = false;
    view().setFocus();
    int triggered = 0;
    const auto trigger = [&] { ++triggered; };
    for (const auto& keys : {u"Ctrl+K"_s, u"Esc"_s, u"Return"_s})
        QObject::connect(
            new QShortcut(QKeySequence(keys), &*window_), &QShortcut::activated, trigger);

    EXPECT_TRUE(send(QEvent::ShortcutOverride, Qt::Key_K, Qt::ControlModifier));
    EXPECT_EQ(combination(), u" "_s) << "the press itself follows";
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_Control));
    EXPECT_EQ(combination(), u"Control "_s);
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier));
    EXPECT_TRUE(send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier));
    EXPECT_TRUE(send(QEvent::KeyRelease, Qt::Key_K));
    EXPECT_EQ(combination(), u"Control K"_s);
    for (const int key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return}) {
        EXPECT_TRUE(send(QEvent::KeyPress, key));
        EXPECT_TRUE(view().hasFocus());
    }
    EXPECT_EQ(combination(), u" Return"_s);
    EXPECT_EQ(triggered, 0);
}

TEST_F(KeyCaptureTest, HandlesAPressOnceThoughItComesTwice) {
    QStringList changes;
    const auto notifier = key_->addNotifier([&] { changes << key_->value(); });
    taps_.sendKey(45, command, u"n"_s);
    // Named by what the window sees, this would be another key.
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_B, Qt::MetaModifier));
    EXPECT_EQ(changes, QStringList{u"N"_s});
    taps_.disable(*taps_.taps.front(), EventType::tapDisabledByTimeout);
    EXPECT_TRUE(taps_.taps.front()->enabled) << "asks again";
    EXPECT_TRUE(send(QEvent::KeyPress, Qt::Key_B, Qt::MetaModifier));
    EXPECT_EQ(changes, (QStringList{u"N"_s, u"B"_s}));
}

TEST_F(KeyCaptureTest, SurvivesAnOwnerThatClosesItOnCapture) {
    const auto notifier = key_->addNotifier([&] { capture_->hide(); });
    EXPECT_TRUE(taps_.sendKey(45, command, u"n"_s));
    EXPECT_TRUE(taps_.taps.empty());
    EXPECT_EQ(modifiers_->value(), QStringList{u"Command"_s});
}

TEST_F(KeyCaptureTest, SaysWhatItIsAndHolds) {
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view());
    ASSERT_TRUE(accessible);
    taps_.sendFlags(command);
    EXPECT_EQ(accessible->text(QAccessible::Value), u"Command"_s);
    taps_.sendKey(45, command | shift, u"N"_s);
    EXPECT_EQ(accessible->role(), QAccessible::HotkeyField);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"label_key_combo"_s);
    EXPECT_EQ(accessible->text(QAccessible::Value), u"Command+Shift+N"_s);
    taps_.sendKey(123);
    EXPECT_EQ(accessible->text(QAccessible::Value), u"←"_s);
}

} // namespace
} // namespace velmora
