// Both editors in their sheets, by keyboard and through their controls.

#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "settings/ActionForm.h"
#include "settings/MouseBindingEditorView.h"
#include "settings/ShortcutEditorView.h"
#include "support/FakeEventTaps.h"
#include "support/TestDisplay.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/SegmentedPicker.h"
#include "viewkit/Sheet.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

/// The control of that accessible name (its key, as no texts are loaded).
template<typename Control>
Control* named(QWidget& editor, const QString& name) {
    for (auto* control : editor.findChildren<Control*>()) {
        if (control->accessibleName() == name)
            return control;
    }
    return nullptr;
}

QLineEdit* field(QWidget& editor, const QString& name) {
    return named<QLineEdit>(editor, name);
}

PopUpButton& buttonPicker(QWidget& editor) {
    return *named<PopUpButton>(editor, u"mouse_btn_label"_s);
}

void choose(QWidget& editor, ActionType type) {
    named<PopUpButton>(editor, u"mouse_action_label"_s)->setCurrentIndex(static_cast<int>(type));
}

QPushButton* button(QWidget& view, const QString& text) {
    for (QPushButton* candidate : view.findChildren<QPushButton*>()) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

class EditorTest : public testing::Test {
protected:
    EditorTest() { window_.show(); }

    ShortcutEditorView& open(std::optional<ShortcutButton> shortcut = {}) {
        return present(std::make_unique<ShortcutEditorView>(
            std::move(shortcut), [this](const ShortcutButton& button) { saved_.append(button); },
            [this] { ++cancelled_; }, taps_));
    }

    MouseBindingEditorView& openMouse(std::optional<MouseButtonBinding> binding = {}) {
        return present(std::make_unique<MouseBindingEditorView>(
            std::move(binding),
            [this](const MouseButtonBinding& made) { savedBindings_.append(made); },
            [this] { ++cancelled_; }, taps_));
    }

    /// The alert over the editor, once it is there.
    Sheet* alert() {
        for (Sheet* sheet : sheet_->findChildren<Sheet*>()) {
            if (sheet->isVisible())
                return sheet;
        }
        return nullptr;
    }

    test::FakeEventTaps taps_;
    QWidget window_;
    Sheet* sheet_ = nullptr;
    QList<ShortcutButton> saved_;
    QList<MouseButtonBinding> savedBindings_;
    int cancelled_ = 0;

private:
    template<typename Editor>
    Editor& present(std::unique_ptr<Editor> editor) {
        Editor& shown = *editor;
        sheet_ = &Sheet::present(window_, std::move(editor));
        QApplication::setActiveWindow(sheet_);
        EXPECT_TRUE(waitFor([&] { return QApplication::focusWidget() != nullptr; }));
        return shown;
    }
};

TEST_F(EditorTest, GrowsWhereTheFormWouldScroll) {
    window_.move(100, 780);
    ShortcutEditorView& editor = open();
    const QRect screen = window_.screen()->availableGeometry();
    const QScrollBar& scrollBar = *editor.findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_EQ(editor.size(), QSize(500, 450));
    for (const ActionType type :
         {ActionType::executeShell, ActionType::pressKey, ActionType::launchApp}) {
        choose(editor, type);
        EXPECT_TRUE(waitFor([&] {
            return scrollBar.maximum() == 0 &&
                   (editor.height() == 450) == (type == ActionType::launchApp) &&
                   sheet_->size() == editor.size();
        })) << int(type)
            << " at " << editor.height();
        EXPECT_TRUE(screen.contains(sheet_->frameGeometry()))
            << int(type) << " from " << sheet_->y();
    }
}

TEST_F(EditorTest, ANewButtonNeedsItsActionAndATitleOrSymbol) {
    ShortcutEditorView& editor = open();
    EXPECT_EQ(editor.windowTitle(), u"shortcut_add_title"_s);
    QLineEdit* title = field(editor, u"label_title"_s);
    QLineEdit* icon = field(editor, u"label_icon"_s);
    QLineEdit* app = field(editor, u"label_app"_s);
    EXPECT_TRUE(title->hasFocus());
    EXPECT_EQ(icon->text(), u"star"_s);
    const struct {
        QString title, icon, app;
        bool canSave;
    } cases[] = {
        {{}, u"star"_s, {}, false}, {{}, u"star"_s, u" "_s, true}, {u"T"_s, {}, u"A"_s, true},
        {{}, {}, u"A"_s, false},    {u" "_s, {}, u"A"_s, true},    {u"T"_s, u"star"_s, {}, false},
    };
    for (const auto& [titleText, iconText, appText, canSave] : cases) {
        title->setText(titleText);
        icon->setText(iconText);
        app->setText(appText);
        EXPECT_EQ(editor.saveButton().isEnabled(), canSave);
        QTest::keyClick(title, Qt::Key_Return);
        EXPECT_EQ(saved_.size(), canSave ? 1 : 0);
        saved_.clear();
    }
    title->setText(u"T"_s);
    app->setText(u"Mail"_s);
    editor.findChild<SegmentedPicker*>()->setCurrentIndex(1);
    // The default button stays the default one after it had the focus.
    editor.saveButton().setFocus();
    button(editor, u"button_cancel"_s)->setFocus();
    app->setFocus();
    QTest::keyClick(app, Qt::Key_Return);
    ASSERT_EQ(saved_.size(), 1);
    EXPECT_EQ(saved_[0].action, ShortcutAction(LaunchApp{u"Mail"_s, std::nullopt}));
    EXPECT_EQ(saved_[0].alignment, ButtonAlignment::right);
}

TEST_F(EditorTest, EditingKeepsTheIdAndWhatIsNotTouched) {
    const ShortcutAction actions[] = {
        LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}, LaunchApp{u"Safari"_s, std::nullopt},
        OpenUrl{u" "_s}, PressKeyCombo{{u"Shift"_s, u"Command"_s}, {}},
        PressKeyCombo{{u"Hyper"_s}, u"F5"_s}};
    for (const ShortcutAction& action : actions) {
        const ShortcutButton stored(u"two\nlines"_s, u"folder"_s, action, ButtonAlignment::right);
        ShortcutEditorView& editor = open(stored);
        EXPECT_EQ(editor.windowTitle(), u"shortcut_edit_title"_s);
        const bool recordsKeys = std::holds_alternative<PressKeyCombo>(action);
        EXPECT_EQ(editor.actionForm().keyCapture().view().hasFocus(), recordsKeys);
        if (recordsKeys) {
            // The form is scrolled to what has the focus.
            const QWidget& form = editor.actionForm();
            EXPECT_TRUE(waitFor([&] { return form.visibleRegion() == form.rect(); }));
        }
        editor.requestSave();
        ASSERT_EQ(saved_.size(), 1);
        EXPECT_EQ(saved_[0].id(), stored.id());
        EXPECT_EQ(saved_[0].title, stored.title);
        EXPECT_EQ(saved_[0].icon, stored.icon);
        EXPECT_EQ(saved_[0].action, stored.action);
        EXPECT_EQ(saved_[0].alignment, stored.alignment);
        saved_.clear();
        sheet_->reject();
    }
}

TEST_F(EditorTest, SwitchingTheTypeKeepsWhatWasTyped) {
    ShortcutEditorView& editor =
        open(ShortcutButton(u"T"_s, {}, OpenUrl{u"https://velmora.invalid"_s}));
    choose(editor, ActionType::launchApp);
    EXPECT_FALSE(editor.saveButton().isEnabled());
    field(editor, u"label_app"_s)->setText(u"Mail"_s);
    choose(editor, ActionType::openURL);
    EXPECT_EQ(field(editor, u"label_url"_s)->text(), u"https://velmora.invalid"_s);
    choose(editor, ActionType::launchApp);
    editor.requestSave();
    ASSERT_EQ(saved_.size(), 1);
    EXPECT_EQ(saved_[0].action, ShortcutAction(LaunchApp{u"Mail"_s, std::nullopt}));
}

TEST_F(EditorTest, AShellCommandIsSavedOnlyOnceTheQuestionIsAnswered) {
    ShortcutEditorView& editor = open(ShortcutButton(u"T"_s, {}, ExecuteShellCommand{u"ls"_s}));
    editor.saveButton().click();
    ASSERT_TRUE(waitFor([&] { return alert() != nullptr; }));
    EXPECT_TRUE(saved_.isEmpty());
    QTest::keyClick(alert(), Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return alert() == nullptr; }));
    EXPECT_TRUE(saved_.isEmpty());
    EXPECT_EQ(cancelled_, 0);
    EXPECT_EQ(editor.findChild<QPlainTextEdit*>()->toPlainText(), u"ls"_s);
    editor.saveButton().click();
    ASSERT_TRUE(waitFor([&] { return alert() != nullptr; }));
    button(*alert(), u"button_save"_s)->click();
    EXPECT_EQ(saved_.size(), 1);
}

TEST_F(EditorTest, ACommandKeepsEveryCharacter) {
    const QString command = u"a\u00a0b\u2028c\n\td"_s;
    ShortcutEditorView& editor = open(ShortcutButton(u"T"_s, {}, ExecuteShellCommand{command}));
    auto* text = editor.findChild<QPlainTextEdit*>();
    QTest::keyClicks(text, u"x"_s);
    EXPECT_EQ(editor.actionForm().fields().shellCommand, u'x' + command);
}

TEST_F(EditorTest, EscapeAndTheButtonCancelOnce) {
    ShortcutEditorView& editor = open();
    QTest::keyClick(field(editor, u"label_title"_s), Qt::Key_Escape);
    EXPECT_EQ(cancelled_, 1);
    EXPECT_TRUE(sheet_->isVisible()) << "closing it is the presenter's part";
    QPushButton* cancel = button(editor, u"button_cancel"_s);
    cancel->click();
    EXPECT_EQ(cancelled_, 2);
    field(editor, u"label_app"_s)->setText(u"App"_s);
    EXPECT_TRUE(editor.saveButton().isDefault());
    cancel->setFocus();
    EXPECT_FALSE(editor.saveButton().isDefault());
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_EQ(cancelled_, 3);
    EXPECT_TRUE(saved_.isEmpty());
    editor.saveButton().setFocus();
    EXPECT_TRUE(editor.saveButton().isDefault());
    field(editor, u"label_title"_s)->setFocus();
    QTest::keyClick(field(editor, u"label_title"_s), Qt::Key_Return);
    EXPECT_EQ(saved_.size(), 1) << "elsewhere it saves";
}

TEST_F(EditorTest, ReturnIsAKeyLikeAnyOtherWhileAButtonsKeysAreRecorded) {
    ShortcutEditorView& editor = open();
    choose(editor, ActionType::pressKey);
    EXPECT_TRUE(*editor.actionForm().isKeyCaptureFocused());
    EXPECT_FALSE(editor.saveButton().isDefault());
    taps_.sendKey(36, 0, u"\r"_s);
    EXPECT_TRUE(saved_.isEmpty());
    EXPECT_EQ(editor.actionForm().fields().keyValue, u"Return"_s);
    EXPECT_TRUE(editor.saveButton().isEnabled());
    field(editor, u"label_title"_s)->setFocus();
    EXPECT_TRUE(editor.saveButton().isDefault());
    QTest::keyClick(field(editor, u"label_title"_s), Qt::Key_Return);
    EXPECT_EQ(saved_.size(), 1);
}

TEST_F(EditorTest, ReturnSavesAMouseBindingAlsoWhileItsKeysAreRecorded) {
    MouseBindingEditorView& editor = openMouse();
    choose(editor, ActionType::pressKey);
    EXPECT_TRUE(editor.saveButton().isDefault());
    const auto pressReturn = [this] {
        EXPECT_TRUE(taps_.sendKey(36, 0, u"\r"_s));
        EXPECT_TRUE(savedBindings_.isEmpty()) << "not from within the tap";
        QCoreApplication::processEvents();
    };
    pressReturn();
    EXPECT_TRUE(savedBindings_.isEmpty()) << "incomplete";
    taps_.sendKey(36, kCGEventFlagMaskShift, u"\r"_s);
    EXPECT_EQ(editor.actionForm().fields().keyValue, u"Return"_s);
    taps_.sendKey(45, kCGEventFlagMaskCommand, u"n"_s);
    const MouseButtonBinding expected(3, PressKeyCombo{{u"Command"_s}, u"N"_s});
    const auto expectSaved = [&] {
        ASSERT_EQ(savedBindings_.size(), 1);
        EXPECT_EQ(savedBindings_[0].buttonNumber, expected.buttonNumber);
        EXPECT_EQ(savedBindings_[0].action, expected.action);
        savedBindings_.clear();
    };
    pressReturn();
    expectSaved();
    taps_.disable(*taps_.taps.front(), EventType::tapDisabledByUserInput);
    QTest::keyClick(&editor.actionForm().keyCapture().view(), Qt::Key_Return);
    expectSaved();
}

TEST_F(EditorTest, AButtonThatIsNotOfferedSurvivesEditing) {
    for (const std::int64_t number :
         {std::int64_t(0), std::int64_t(2), std::int64_t(8), std::int64_t(12),
          std::numeric_limits<std::int64_t>::max()}) {
        const MouseButtonBinding stored(number, OpenUrl{u"x:"_s});
        MouseBindingEditorView& editor = openMouse(stored);
        const bool isOffered = number >= 2 && number <= 8;
        EXPECT_EQ(buttonPicker(editor).count(), isOffered ? 7 : 8) << number;
        editor.requestSave();
        ASSERT_EQ(savedBindings_.size(), 1);
        EXPECT_EQ(savedBindings_[0].buttonNumber, number);
        EXPECT_EQ(savedBindings_[0].id(), stored.id());
        savedBindings_.clear();
        sheet_->reject();
    }
}

TEST_F(EditorTest, PickersChangeOnlyInTheirMenu) {
    PopUpButton& picker = buttonPicker(openMouse());
    QWheelEvent wheel(
        {5, 5}, picker.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&picker, &wheel);
    // A letter finds no item, not even the one it begins.
    picker.addItem(u"x"_s);
    QTest::keyClick(&picker, Qt::Key_X);
    EXPECT_EQ(picker.currentData(), 3);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space}) {
        QTest::keyClick(&picker, key);
        EXPECT_TRUE(picker.view()->isVisible());
        EXPECT_EQ(picker.currentData(), 3);
        picker.hidePopup();
    }
}

} // namespace
