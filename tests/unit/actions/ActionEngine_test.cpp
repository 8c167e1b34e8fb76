#include "actions/ActionEngine.h"

#include "support/FakeKeyboardEvents.h"
#include "support/FakeWorkspace.h"
#include "support/KeyTexts.h"
#include "support/LogCapture.h"
#include "support/TestDisplay.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class ActionEngineTest : public testing::Test {
protected:
    /// Carries `action` out and gives the log's last line.
    QString execute(const ShortcutAction& action) {
        engine.execute(action);
        workspace.completeLaunches();
        return log.lines().last();
    }

    test::KeyTexts texts;
    test::LogCapture log;
    test::FakeWorkspace workspace;
    test::FakeKeyboardEvents keyboard;
    ActionEngine engine{workspace, keyboard, [this](std::chrono::microseconds duration) {
                            EXPECT_EQ(duration.count(), 50000);
                            EXPECT_EQ(keyboard.posted.size(), 1U) << "between the two";
                        }};
};

TEST_F(ActionEngineTest, LaunchesWhatTheFirstLookupFinds) {
    workspace.installed = {
        {u"org.App"_s, {u"/app"_s}},           {u"com.apple.Safari"_s, {u"/role"_s}},
        {u"org.B"_s, {u"/1"_s, u"/2"_s}},      {u"com.apple.Notes"_s, {u"/broken"_s}},
        {QString(), {u"/empty identifier"_s}},
    };
    workspace.launchErrors = {{u"/broken"_s, u"no %2"_s}};
    const struct {
        LaunchApp action;
        QString lookups, opened, line;
    } cases[] = {
        {{u"A"_s, u"org.App"_s}, u"org.App"_s, u"/app"_s, u"✅ Launched A via bundle ID"_s},
        {{u"Safari"_s, {}}, u"com.apple.Safari"_s, u"/role"_s, u"✅ Launched Safari"_s},
        {{u"Safari"_s, u"x"_s}, u"x|com.apple.Safari"_s, u"/role"_s, u"✅ Launched Safari"_s},
        {{u"org.B"_s, {}}, u"com.apple.org.B|org.B"_s, u"/1"_s, u"✅ Launched org.B"_s},
        {{u"%1"_s, u""_s}, {}, u"/empty identifier"_s, u"✅ Launched %1 via bundle ID"_s},
        {{u"A B"_s, {}}, u"com.apple.A B|A B"_s, {}, u"❌ Could not find application: A B"_s},
        // A launch that fails is not tried another way.
        {{u"Notes"_s, {}},
         u"com.apple.Notes"_s,
         u"/broken"_s,
         u"❌ Failed to launch Notes: no %2"_s},
    };
    for (const auto& [action, lookups, opened, line] : cases) {
        EXPECT_EQ(execute(action), line);
        EXPECT_EQ(std::exchange(workspace.lookups, {}).join(u'|'), lookups);
        EXPECT_EQ(std::exchange(workspace.opened, {}).join(u'|'), opened);
    }
    EXPECT_EQ(
        execute(LaunchApp{u"Safari"_s, u"com.apple.Notes"_s}),
        u"⚠️ Failed to launch via bundle ID: no %2"_s);
    EXPECT_EQ(workspace.opened, QStringList{u"/broken"_s});
}

TEST_F(ActionEngineTest, OpensEveryUrlThatParsesUnchanged) {
    const QString accepted = u"HTTPS://EXAMPLE.ORG/a?b=%20c#d"_s;
    EXPECT_EQ(execute(OpenUrl{accepted}), u"✅ Opened URL: "_s + accepted);
    for (const QString& text :
         u"| https://a.org|https://a.org |https://a b/|https://a:port/"_s.split(u'|'))
        EXPECT_EQ(execute(OpenUrl{text}), u"❌ Invalid URL: "_s + text);
    EXPECT_EQ(workspace.openedUrls, QList{QUrl(accepted)});
}

TEST_F(ActionEngineTest, RunsCommandsThroughTheShell) {
    const std::pair<QString, QString> cases[] = {
        {u"echo \"%1 $ZSH_NAME\" >&2"_s, u"📝 Command output: %1 zsh\n|✅ Executed shell command"_s},
        {u"printf '\\xff'; exit 3"_s, u"✅ Executed shell command"_s},
        // Longer than the system takes: the one way to make the shell's start fail.
        {QString(200000, u':'), u"❌ Failed to execute command: Argument list too long"_s},
    };
    for (const auto& [command, lines] : cases) {
        const qsizetype before = log.lines().size() + 1;
        execute(ExecuteShellCommand{command});
        EXPECT_EQ(log.lines().size(), before) << "nothing waits for it";
        EXPECT_TRUE(test::waitFor([&] { return log.lines().last() == lines.section(u'|', -1); }));
        EXPECT_EQ(log.lines().sliced(before).join(u'|'), lines);
    }
}

TEST_F(ActionEngineTest, PressesKeyCombinations) {
    const struct {
        PressKeyCombo action;
        KeyCode code;
        EventFlags flags;
    } cases[] = {
        {{{}, u"A"_s}, 0, 0},
        {{{u"Control"_s, u"Option"_s}, u"↑"_s}, 126, 0xC0000},
        {{{u"Command"_s, u"cmd"_s}, u"C"_s}, 8, 0x100000},
        {{{u"Shift"_s, u"Shift"_s}, u"1"_s}, 18, 0x20000},
    };
    for (const auto& [action, code, flags] : cases) {
        EXPECT_EQ(execute(action), u"✅ Key combo sent successfully"_s);
        ASSERT_EQ(keyboard.posted.size(), 2U);
        for (const KeyboardEvent& event : keyboard.posted) {
            EXPECT_EQ(std::pair(event.keyCode, event.flags), std::pair(code, flags));
            EXPECT_EQ(event.keyDown, &event == keyboard.posted.data());
        }
        keyboard.posted.clear();
    }
    ActionEngine failing{workspace, keyboard, [](auto) { throw std::runtime_error("no wait"); }};
    EXPECT_THROW(failing.execute(PressKeyCombo{{}, u"A"_s}), std::runtime_error);
    EXPECT_EQ(keyboard.posted.size(), 2U) << "the key comes up whatever happens";
}

} // namespace
