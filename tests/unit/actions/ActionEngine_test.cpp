#include "actions/ActionEngine.h"

#include "support/FakeKeyboardEvents.h"
#include "support/FakeWorkspace.h"
#include "support/KeyTexts.h"
#include "support/LogCapture.h"
#include "support/TestDisplay.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

class ActionEngineTest : public testing::Test {
protected:
    /// Carries `action` out and gives the log lines it wrote, without the one that announces it.
    QStringList execute(const ShortcutAction& action) {
        const qsizetype before = log.lines().size();
        engine.execute(action);
        workspace.completeLaunches();
        const QStringList lines = log.lines().sliced(before);
        EXPECT_EQ(lines.value(0), u"🚀 Executing action: "_s + displayName(action));
        return lines.sliced(1);
    }

    test::KeyTexts texts;
    test::LogCapture log;
    test::FakeWorkspace workspace;
    test::FakeKeyboardEvents keyboard;
    /// How many events were posted when each wait began.
    std::vector<size_t> postedAtWaits;
    ActionEngine engine{workspace, keyboard, [this](std::chrono::microseconds duration) {
                            EXPECT_EQ(duration.count(), 50000);
                            postedAtWaits.push_back(keyboard.posted.size());
                        }};
};

} // namespace

TEST_F(ActionEngineTest, LaunchesWhatTheFirstLookupFinds) {
    workspace.installed = {
        {u"org.example.App"_s, {u"/by-id"_s}},
        {u"com.apple.Safari"_s, {u"/by-role"_s}},
        {u"com.google.Chrome"_s, {u"/first"_s, u"/second"_s}},
        {QString(), {u"/empty"_s}},
    };
    const struct {
        LaunchApp action;
        QStringList lookups, opened, lines;
    } cases[] = {
        {{u"Safari"_s, u"org.example.App"_s},
         {u"org.example.App"_s},
         {u"/by-id"_s},
         {u"✅ Launched Safari via bundle ID"_s}},
        {{u"Safari"_s, {}}, {u"com.apple.Safari"_s}, {u"/by-role"_s}, {u"✅ Launched Safari"_s}},
        {{u"Safari"_s, u"not.installed"_s},
         {u"not.installed"_s, u"com.apple.Safari"_s},
         {u"/by-role"_s},
         {u"✅ Launched Safari"_s}},
        {{u"com.google.Chrome"_s, {}},
         {u"com.apple.com.google.Chrome"_s, u"com.google.Chrome"_s},
         {u"/first"_s},
         {u"✅ Launched com.google.Chrome"_s}},
        {{u"%1"_s, QString()}, {QString()}, {u"/empty"_s}, {u"✅ Launched %1 via bundle ID"_s}},
        {{u"App Store"_s, {}},
         {u"com.apple.App Store"_s, u"App Store"_s},
         {},
         {u"❌ Could not find application: App Store"_s}},
    };
    for (const auto& [action, lookups, opened, lines] : cases) {
        workspace.lookups.clear();
        workspace.opened.clear();
        EXPECT_EQ(execute(action), lines);
        EXPECT_EQ(workspace.lookups, lookups);
        EXPECT_EQ(workspace.opened, opened);
    }
}

TEST_F(ActionEngineTest, ALaunchThatFailsIsNotTriedAnotherWay) {
    workspace.installed = {
        {u"org.example.App"_s, {u"/broken"_s}}, {u"com.apple.Notes"_s, {u"/broken"_s}}};
    workspace.launchErrors = {{u"/broken"_s, u"no %2 there"_s}};
    EXPECT_EQ(
        execute(LaunchApp{u"Notes"_s, u"org.example.App"_s}),
        QStringList{u"⚠️ Failed to launch via bundle ID: no %2 there"_s});
    EXPECT_EQ(
        execute(LaunchApp{u"Notes"_s, {}}),
        QStringList{u"❌ Failed to launch Notes: no %2 there"_s});
    EXPECT_EQ(workspace.opened.size(), 2);
}

TEST_F(ActionEngineTest, OpensEveryUrlThatParsesUnchanged) {
    const QStringList parsed = {
        u"https://example.org/a?b=%20c#d"_s, u"file:///tmp"_s, u"HTTPS://EXAMPLE.ORG"_s};
    for (const QString& text : parsed) {
        EXPECT_EQ(execute(OpenUrl{text}), QStringList{u"✅ Opened URL: "_s + text});
        EXPECT_EQ(workspace.openedUrls.last(), QUrl(text));
    }
    const auto opened = workspace.openedUrls.size();
    const QStringList rejected = {
        QString(), u" https://example.org"_s, u"https://example.org "_s, u"https://a b/"_s,
        u"https://example.org:port/"_s};
    for (const QString& text : rejected)
        EXPECT_EQ(execute(OpenUrl{text}), QStringList{u"❌ Invalid URL: "_s + text});
    EXPECT_EQ(workspace.openedUrls.size(), opened);
}

TEST_F(ActionEngineTest, RunsCommandsThroughTheShell) {
    const QString done = u"✅ Executed shell command"_s;
    const struct {
        QString command;
        QStringList lines;
    } cases[] = {
        {u"echo hi"_s, {u"📝 Command output: hi\n"_s, done}},
        {u"echo \"%1 $ZSH_NAME\" >&2"_s, {u"📝 Command output: %1 zsh\n"_s, done}},
        {u"exit 3"_s, {done}},
        {u"printf '\\xff'"_s, {done}},
        // Longer than the system takes: the one way to make the shell's start fail.
        {u": "_s + QString(200000, u'x'),
         {u"❌ Failed to execute command: Argument list too long"_s}},
    };
    for (const auto& [command, lines] : cases) {
        const qsizetype before = log.lines().size() + 1;
        EXPECT_TRUE(execute(ExecuteShellCommand{command}).isEmpty()) << "nothing waits for it";
        EXPECT_TRUE(waitFor([&] { return log.lines().size() - before >= lines.size(); }));
        EXPECT_EQ(log.lines().sliced(before), lines);
    }
}

TEST_F(ActionEngineTest, PressesKeyCombinations) {
    const QStringList sent = {
        u"📤 Posting key down event..."_s, u"📤 Posting key up event..."_s,
        u"✅ Key combo sent successfully"_s};
    const struct {
        PressKeyCombo action;
        QString lines;
        KeyCode code;
        EventFlags flags;
    } cases[] = {
        {{{}, u"A"_s}, u"⌨️ Pressing: +A|📍 Key code: 0x00"_s, 0, 0},
        {{{u"Control"_s, u"Option"_s}, u"↑"_s},
         u"⌨️ Pressing: Control+Option+↑|📍 Key code: 0x7e|  + Control|  + Option"_s,
         126,
         0xC0000},
        {{{u"Command"_s, u"cmd"_s}, u"C"_s},
         u"⌨️ Pressing: Command+cmd+C|📍 Key code: 0x08|  + Command|  ⚠️ Unknown modifier: cmd"_s,
         8,
         0x100000},
        {{{u"Shift"_s, u"Shift"_s}, u"1"_s},
         u"⌨️ Pressing: Shift+Shift+1|📍 Key code: 0x12|  + Shift|  + Shift"_s,
         18,
         0x20000},
    };
    for (const auto& [action, lines, code, flags] : cases) {
        keyboard.posted.clear();
        postedAtWaits.clear();
        EXPECT_EQ(execute(action), lines.split(u'|') + sent);
        ASSERT_EQ(keyboard.posted.size(), 2U);
        for (const KeyboardEvent& event : keyboard.posted) {
            EXPECT_EQ(event.keyCode, code);
            EXPECT_EQ(event.flags, flags);
        }
        EXPECT_TRUE(keyboard.posted[0].keyDown);
        EXPECT_FALSE(keyboard.posted[1].keyDown);
        EXPECT_EQ(postedAtWaits, std::vector<size_t>{1}) << "the wait is between the two";
    }
    EXPECT_EQ(keyboard.sourcesAsked, 1);
}

TEST_F(ActionEngineTest, AnUnknownKeyIsReportedBeforeAnythingElse) {
    for (const QString& key : {u"F5"_s, u"return"_s, u"ß"_s, QString(), u"%2"_s})
        EXPECT_EQ(
            execute(PressKeyCombo{{u"Command"_s}, key}),
            (QStringList{u"⌨️ Pressing: Command+"_s + key, u"❌ Unknown key: "_s + key}));
    EXPECT_EQ(keyboard.sourcesAsked, 0);
    EXPECT_TRUE(keyboard.posted.empty());
}

TEST_F(ActionEngineTest, PostsNothingWhenAStepBeforeFails) {
    const PressKeyCombo action{{u"Command"_s}, u"C"_s};
    const QStringList before = {
        u"⌨️ Pressing: Command+C"_s, u"📍 Key code: 0x08"_s, u"  + Command"_s};
    keyboard.createsKeyUp = false;
    EXPECT_EQ(execute(action), before + QStringList{u"❌ Failed to create key up event"_s});
    keyboard.createsKeyDown = false;
    EXPECT_EQ(execute(action), before + QStringList{u"❌ Failed to create key down event"_s});
    EXPECT_TRUE(keyboard.posted.empty());
}

TEST_F(ActionEngineTest, AMissingEventSourceIsAskedForOnlyOnce) {
    keyboard.hasSource = false;
    for (int attempt = 0; attempt < 3; ++attempt) {
        EXPECT_EQ(execute(PressKeyCombo{{}, u"Tab"_s}).last(), u"❌ Failed to get event source"_s);
        keyboard.hasSource = true;
    }
    EXPECT_EQ(keyboard.sourcesAsked, 1);
    EXPECT_TRUE(keyboard.posted.empty());
}

TEST_F(ActionEngineTest, TheKeyComesUpEvenWhenTheWaitFails) {
    ActionEngine failing{workspace, keyboard, [](std::chrono::microseconds) {
                             throw std::runtime_error("interrupted");
                         }};
    EXPECT_THROW(failing.execute(PressKeyCombo{{}, u"A"_s}), std::runtime_error);
    ASSERT_EQ(keyboard.posted.size(), 2U);
    EXPECT_FALSE(keyboard.posted[1].keyDown);
}
