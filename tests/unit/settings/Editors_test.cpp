// Both editors in their sheets, by keyboard and through their controls.

#include "input/KeyCaptureNSView.h"
#include "input/KeyCaptureView.h"
#include "model/StoredForm.h"
#include "settings/ActionForm.h"
#include "settings/MouseBindingEditorView.h"
#include "settings/ShortcutEditorView.h"
#include "support/FakeInputGrants.h"
#include "support/KeyTexts.h"
#include "support/Named.h"
#include "support/TestDisplay.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/SegmentedPicker.h"
#include "viewkit/Sheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::named;
using velmora::test::waitFor;

namespace {

void choose(QWidget& editor, ActionType type) {
    named<PopUpButton>(editor, u"mouse_action_label"_s).setCurrentIndex(static_cast<int>(type));
}

class EditorTest : public testing::Test {
protected:
    EditorTest() { window_.show(); }

    ShortcutEditorView& open(std::optional<ShortcutButton> shortcut = {}) {
        return present(std::make_unique<ShortcutEditorView>(
            std::move(shortcut), [this](const ShortcutButton& button) { saved_.append(button); },
            [this] { ++cancelled_; }, inputGrants_));
    }

    MouseBindingEditorView& openMouse(std::optional<MouseButtonBinding> binding = {}) {
        return present(std::make_unique<MouseBindingEditorView>(
            std::move(binding),
            [this](const MouseButtonBinding& made) { savedBindings_.append(made); },
            [this] { ++cancelled_; }, inputGrants_));
    }

    test::FakeInputGrants inputGrants_;
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

TEST_F(EditorTest, ANewButtonNeedsItsActionAndATitleOrSymbol) {
    ShortcutEditorView& editor = open();
    EXPECT_EQ(editor.windowTitle(), u"shortcut_add_title"_s);
    QLineEdit* title = &named<QLineEdit>(editor, u"label_title"_s);
    QLineEdit* icon = &named<QLineEdit>(editor, u"label_icon"_s);
    QLineEdit* app = &named<QLineEdit>(editor, u"label_app"_s);
    EXPECT_TRUE(title->hasFocus());
    EXPECT_EQ(icon->text(), u"star"_s);
    for (int filled = 0; filled < 8; ++filled) {
        title->setText(filled & 1 ? u" "_s : QString());
        icon->setText(filled & 2 ? u"star"_s : QString());
        app->setText(filled & 4 ? u" "_s : QString());
        const bool canSave = filled > 4;
        EXPECT_EQ(editor.saveButton().isEnabled(), canSave) << filled;
        QTest::keyClick(title, Qt::Key_Return);
        EXPECT_EQ(std::exchange(saved_, {}).size(), canSave ? 1 : 0) << filled;
    }
    icon->clear();
    title->setText(u"T"_s);
    app->setText(u"Mail"_s);
    editor.findChild<SegmentedPicker*>()->setCurrentIndex(1);
    // Return is the focused button's, and then Save's again.
    QPushButton* cancel = &named<QPushButton>(editor, u"button_cancel"_s);
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_EQ(cancelled_, 1);
    EXPECT_TRUE(saved_.isEmpty());
    QPushButton* chooseSymbol = &named<QPushButton>(editor, u"button_select"_s);
    chooseSymbol->setFocus();
    QTest::keyClick(chooseSymbol, Qt::Key_Return);
    EXPECT_TRUE(saved_.isEmpty());
    auto* chooser = sheet_->findChild<Sheet*>();
    ASSERT_TRUE(chooser);
    chooser->reject();
    app->setFocus();
    QTest::keyClick(app, Qt::Key_Return);
    ASSERT_EQ(saved_.size(), 1);
    EXPECT_EQ(saved_[0].action, ShortcutAction(LaunchApp{u"Mail"_s, std::nullopt}));
    EXPECT_EQ(saved_[0].alignment, ButtonAlignment::right);
}

TEST_F(EditorTest, EditingKeepsTheIdAndWhatIsNotTouched) {
    const ShortcutAction actions[] = {
        LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}, LaunchApp{u"Safari"_s, std::nullopt},
        OpenUrl{u"x:"_s}, PressKeyCombo{{u"Shift"_s, u"Command"_s}, {}},
        PressKeyCombo{{u"Hyper"_s}, u"F5"_s}};
    for (const ShortcutAction& action : actions) {
        const ShortcutButton stored(u"two\nlines"_s, u"folder"_s, action, ButtonAlignment::right);
        ShortcutEditorView& editor = open(stored);
        EXPECT_EQ(editor.windowTitle(), u"shortcut_edit_title"_s);
        const bool recordsKeys = std::holds_alternative<PressKeyCombo>(action);
        EXPECT_EQ(editor.actionForm().keyCapture().view().hasFocus(), recordsKeys);
        // The form is scrolled to what has the focus.
        const QWidget& form = editor.actionForm();
        EXPECT_TRUE(waitFor([&] { return !recordsKeys || form.visibleRegion() == form.rect(); }));
        editor.requestSave();
        EXPECT_EQ(encodedList(std::exchange(saved_, {})), encodedList(QList{stored}));
        sheet_->reject();
    }
    const QString command = u"a\u00a0b\u2028c\n\td"_s;
    ShortcutEditorView& editor = open(ShortcutButton(u"T"_s, {}, ExecuteShellCommand{command}));
    auto* text = editor.findChild<QPlainTextEdit*>();
    QTest::keyClicks(text, u"x"_s);
    QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(sheet_->findChild<QDialog*>()) << "asks before it saves";
    EXPECT_EQ(editor.actionForm().fields().shellCommand, u'x' + command);
}

TEST_F(EditorTest, WhileKeysAreRecordedReturnSavesAMouseBindingOnly) {
    const auto record = [this](KeyCode code, EventFlags flags, const QString& characters) {
        EXPECT_TRUE(inputGrants_.sendKey(code, flags, characters));
        EXPECT_TRUE(saved_.isEmpty() && savedBindings_.isEmpty()) << "not from within the grant";
        QCoreApplication::processEvents();
    };
    ShortcutEditorView& editor = open();
    choose(editor, ActionType::pressKey);
    EXPECT_FALSE(editor.saveButton().isDefault());
    record(36, 0, u"\r"_s);
    EXPECT_EQ(editor.actionForm().fields().keyValue, u"Return"_s);
    QLineEdit& title = named<QLineEdit>(editor, u"label_title"_s);
    title.setFocus();
    QTest::keyClick(&title, Qt::Key_Return);
    EXPECT_EQ(std::exchange(saved_, {}).size(), 1);
    sheet_->reject();

    MouseBindingEditorView& mouseEditor = openMouse();
    choose(mouseEditor, ActionType::pressKey);
    record(36, 0, u"\r"_s);
    EXPECT_TRUE(savedBindings_.isEmpty()) << "incomplete";
    record(36, kCGEventFlagMaskShift, u"\r"_s);
    EXPECT_EQ(mouseEditor.actionForm().fields().keyValue, u"Return"_s);
    record(45, kCGEventFlagMaskCommand, u"n"_s);
    record(36, 0, u"\r"_s);
    inputGrants_.otherTakes({test::Input::everyKey});
    QTest::keyClick(&mouseEditor.actionForm().keyCapture().view(), Qt::Key_Return);
    ASSERT_EQ(savedBindings_.size(), 2) << "through the grant and through the window";
    for (const MouseButtonBinding& binding : savedBindings_) {
        EXPECT_EQ(binding.buttonNumber, 3);
        EXPECT_EQ(binding.action, ShortcutAction(PressKeyCombo{{u"Command"_s}, u"N"_s}));
    }
}

TEST_F(EditorTest, AnAddressIsCompletedInSightOrRefused) {
    const test::KeyTexts texts;
    ShortcutEditorView& editor = open(ShortcutButton(u"T"_s, {}, OpenUrl{u"debian.org"_s}));
    QLineEdit& url = named<QLineEdit>(editor, u"label_url"_s);
    const QLabel& noteLabel = *url.parentWidget()->findChild<QLabel*>();
    EXPECT_TRUE(noteLabel.isVisible());
    // What is typed, and the address to be.
    const std::pair<QString, QString> cases[] = {
        {u"debian"_s, {}}, {u" x:y "_s, u"x:y"_s}, {u"mailto:a@b.org"_s, {}}};
    for (const auto& [typed, told] : cases) {
        url.setText(typed);
        const QString note = told.isEmpty() ? told : u"action_desc_open %1."_s.arg(told);
        EXPECT_EQ(url.accessibleDescription(), note);
        EXPECT_EQ(noteLabel.text(), note);
        named<QPushButton>(editor, u"button_cancel"_s).setFocus();
        editor.requestSave();
        const bool isRefused = typed == u"debian";
        EXPECT_EQ(noteLabel.text() == u"url_invalid"_s, isRefused);
        EXPECT_EQ(url.hasFocus(), isRefused);
        EXPECT_EQ(url.text(), typed.trimmed());
        EXPECT_EQ(saved_.size(), isRefused ? 0 : 1);
        for (const ShortcutButton& button : std::exchange(saved_, {}))
            EXPECT_EQ(button.action, ShortcutAction(OpenUrl{url.text()})) << "in sight";
    }
    choose(editor, ActionType::launchApp);
    EXPECT_FALSE(editor.saveButton().isEnabled());
    choose(editor, ActionType::openURL);
    EXPECT_EQ(url.text(), u"mailto:a@b.org"_s) << "kept meanwhile";
}

TEST_F(EditorTest, AButtonThatIsNotOfferedSurvivesEditing) {
    for (const auto& [number, offered] : {std::pair(1LL, 8), {2LL, 7}, {8LL, 7}, {1LL << 62, 8}}) {
        const MouseButtonBinding stored(number, OpenUrl{u"x:"_s});
        MouseBindingEditorView& editor = openMouse(stored);
        EXPECT_EQ(named<PopUpButton>(editor, u"mouse_btn_label"_s).count(), offered) << number;
        editor.requestSave();
        EXPECT_EQ(encodedList(std::exchange(savedBindings_, {})), encodedList(QList{stored}));
        sheet_->reject();
    }
}

} // namespace
