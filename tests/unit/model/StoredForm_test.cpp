#include "model/StoredForm.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using Kind = DecodingError::Kind;

constexpr auto goodId = "\"id\":\"0F8FAD5B-D9CB-469F-A165-70867728950E\"";

QByteArray buttonText(const QByteArray& action, const QByteArray& id = goodId) {
    return "[{" + id + R"(,"title":"t","icon":"i","action":)" + action + R"(,"alignment":"left"}])";
}

/// The error that reading `json` ends with; its description says so when it reads well.
DecodingError errorOf(const QByteArray& json) {
    const auto decoded = decodedList(json, readButton);
    const auto* error = std::get_if<DecodingError>(&decoded);
    return error ? *error : DecodingError{Kind::dataCorrupted, {}, u"(no error)"_s};
}

QList<ShortcutButton> read(const QByteArray& json) {
    const auto decoded = decodedList(json, readButton);
    if (const auto* error = std::get_if<DecodingError>(&decoded)) {
        ADD_FAILURE() << error->description.toStdString() << " at "
                      << error->codingPath.join(u'/').toStdString();
        return {};
    }
    return std::get<0>(decoded);
}

TEST(StoredFormTest, FailuresCarryTheirKindAndPath) {
    const QByteArray good = buttonText(R"({"openURL":{"url":"u"}})");
    const auto with = [&](const char* before, const char* after) {
        EXPECT_TRUE(good.contains(before));
        return QByteArray(good).replace(before, after);
    };
    const QString action = u"Index 0/action"_s;
    const struct {
        QByteArray json;
        Kind kind;
        QString path;
    } failures[] = {
        {"{}", Kind::typeMismatch, {}},
        {"[5]", Kind::typeMismatch, u"Index 0"_s},
        {"[null]", Kind::valueNotFound, u"Index 0"_s},
        {with("\"id\"", "\"ID\""), Kind::keyNotFound, u"Index 0/id"_s},
        {with("\"0F8F", "\"0F8"), Kind::dataCorrupted, u"Index 0/id"_s},
        {with("\"t\"", "null"), Kind::valueNotFound, u"Index 0/title"_s},
        {with("\"i\"", "7"), Kind::typeMismatch, u"Index 0/icon"_s},
        {with("\"action\"", "\"Action\""), Kind::keyNotFound, action},
        {with("\"left\"", "\"center\""), Kind::dataCorrupted, u"Index 0/alignment"_s},
        {buttonText("[]"), Kind::typeMismatch, action},
        {buttonText("{}"), Kind::typeMismatch, action},
        {buttonText(R"({"comment":"c"})"), Kind::typeMismatch, action},
        {buttonText(R"({"LaunchApp":{"name":"n"}})"), Kind::typeMismatch, action},
        {buttonText(R"({"launchApp":{"name":"n"},"openURL":{"url":"u"}})"), Kind::typeMismatch,
         action},
        {buttonText(R"({"launchApp":null,"openURL":null})"), Kind::typeMismatch, action},
        {buttonText(R"({"openURL":"u"})"), Kind::typeMismatch, action + u"/openURL"_s},
        {buttonText(R"({"openURL":{}})"), Kind::keyNotFound, action + u"/openURL/url"_s},
        {buttonText(R"({"launchApp":{"name":"n","bundleId":1}})"), Kind::typeMismatch,
         action + u"/launchApp/bundleId"_s},
        {buttonText(R"({"pressKeyCombo":{"key":"k"}})"), Kind::keyNotFound,
         action + u"/pressKeyCombo/modifiers"_s},
        {buttonText(R"({"pressKeyCombo":{"modifiers":["Command",1],"key":"k"}})"),
         Kind::typeMismatch, action + u"/pressKeyCombo/modifiers/Index 1"_s},
        {good.chopped(1) + "," + good.sliced(1).replace("\"t\"", "[]"), Kind::typeMismatch,
         u"Index 1/title"_s},
    };
    for (const auto& failure : failures) {
        SCOPED_TRACE(failure.json.constData());
        const DecodingError error = errorOf(failure.json);
        EXPECT_EQ(error.kind, failure.kind);
        EXPECT_EQ(error.codingPath.join(u'/'), failure.path);
        EXPECT_NE(error.description, u"(no error)"_s);
        EXPECT_EQ(
            error.description == u"Invalid number of keys found, expected one."_s,
            failure.json.contains("action\":{") && failure.path == action);
    }
}

TEST(StoredFormTest, ReadsWhatIsAllowed) {
    const std::pair<const char*, ShortcutAction> cases[] = {
        {R"({"launchApp":{"name":"n"}})", LaunchApp{u"n"_s, std::nullopt}},
        {R"({"launchApp":{"name":"n","bundleId":null}})", LaunchApp{u"n"_s, std::nullopt}},
        {R"({"launchApp":{"bundleId":"","name":""}})", LaunchApp{u""_s, u""_s}},
        {R"({"launchApp":{"name":"n","x":[1]},"comment":"c"})", LaunchApp{u"n"_s, std::nullopt}},
        {R"({"pressKeyCombo":{"modifiers":[],"key":"\u2190"}})", PressKeyCombo{{}, u"←"_s}},
        {R"( { "openURL" : { "url" : "a\/b" } } )", OpenUrl{u"a/b"_s}},
    };
    for (const auto& [text, action] : cases) {
        SCOPED_TRACE(text);
        const auto buttons = read("\xEF\xBB\xBF" + buttonText(text));
        ASSERT_EQ(buttons.size(), 1);
        EXPECT_EQ(buttons[0].action, action);
    }
    EXPECT_TRUE(read("[]").isEmpty());
}

TEST(StoredFormTest, AnIdIsTheCanonicalTextInEitherCase) {
    const auto idText = [](const char* id) { return "\"id\":\"" + QByteArray(id) + '"'; };
    for (const char* id :
         {"0F8FAD5B-D9CB-469F-A165-70867728950E", "0f8fad5b-d9cb-469f-a165-70867728950e",
          "00000000-0000-0000-0000-000000000000"}) {
        const auto buttons = read(buttonText(R"({"openURL":{"url":"u"}})", idText(id)));
        ASSERT_EQ(buttons.size(), 1);
        EXPECT_TRUE(encodedList(buttons).contains(idText(id).toUpper().replace("ID", "id")));
    }
    for (const char* id :
         {"", "{0F8FAD5B-D9CB-469F-A165-70867728950E}", "0F8FAD5BD9CB469FA16570867728950E",
          "0F8FAD5B-D9CB-469F-A165-70867728950E ", "0F8FAD5B-D9CB-469F-A165-70867728950G",
          "0F8FAD5BD-9CB-469F-A165-70867728950E", "{0F8FAD5B-D9CB-469F-A165-70867728950",
          "+F8FAD5B-D9CB-469F-A165-70867728950E", "0F8FAD5B-D9CB-469F-A165-708677289\u0665\u0665E"})
        EXPECT_EQ(
            errorOf(buttonText(R"({"openURL":{"url":"u"}})", idText(id))).codingPath.last(),
            u"id"_s)
            << id;
}

TEST(StoredFormTest, EveryFieldSurvivesTheRoundTrip) {
    const QString nul = u"a"_s + QChar(0) + u"b"_s;
    const QString lone = QChar(0xD800) + u"x"_s + QChar(0xDC00) + QChar(0xD83D);
    const QString texts[] = {
        QString(),
        nul,
        lone,
        u"😀👩‍👩‍👧 e\u0301"_s,
        u"\u202Eשלום عربي"_s,
        u"\"\\/\n\t\u007F\u2028"_s,
        QString(100'000, u'ス')};
    QList<ShortcutButton> buttons;
    for (const QString& text : texts) {
        buttons << ShortcutButton(text, text, LaunchApp{text, text})
                << ShortcutButton(text, text, LaunchApp{text, std::nullopt}, ButtonAlignment::right)
                << ShortcutButton(text, text, OpenUrl{text})
                << ShortcutButton(text, text, ExecuteShellCommand{text})
                << ShortcutButton(text, text, PressKeyCombo{{}, text})
                << ShortcutButton(text, text, PressKeyCombo{{text, u"Shift"_s}, text});
    }
    const QByteArray written = encodedList(buttons);
    const auto again = read(written);
    EXPECT_EQ(again, buttons) << "by their ids";
    EXPECT_EQ(encodedList(again), written);
}

TEST(StoredFormTest, WritesTheAgreedMembers) {
    const QUuid id = QUuid::fromString(u"0f8fad5b-d9cb-469f-a165-70867728950e"_s);
    const std::pair<ShortcutAction, const char*> cases[] = {
        {LaunchApp{u"n"_s, u"b"_s}, R"({"launchApp":{"name":"n","bundleId":"b"}})"},
        {LaunchApp{u"n"_s, std::nullopt}, R"({"launchApp":{"name":"n"}})"},
        {OpenUrl{u"u"_s}, R"({"openURL":{"url":"u"}})"},
        {ExecuteShellCommand{u"c"_s}, R"({"executeShellCommand":{"command":"c"}})"},
        {PressKeyCombo{{}, u"k"_s}, R"({"pressKeyCombo":{"modifiers":[],"key":"k"}})"},
    };
    for (const auto& [action, text] : cases)
        EXPECT_EQ(
            encodedList(QList{ShortcutButton(u"t"_s, u"i"_s, action, ButtonAlignment::right, id)}),
            buttonText(text).replace("left", "right"));
}

TEST(StoredFormTest, HostileTextsEndInAClearError) {
    const QByteArray good = buttonText(R"({"openURL":{"url":"u"}})");
    QByteArray texts[] = {
        "",
        good + "x",
        good + good,
        good.chopped(1),
        QByteArray(good).replace("\"t\"", "\"\xff\""),
        QByteArray(1'000'000, '['),
        "[" + QByteArray("{\"action\":").repeated(500'000),
        QByteArray(1'000'000, '\0'),
        "[" + QByteArray("0,").repeated(1'000'000) + "0]",
        buttonText(
            R"({"pressKeyCombo":{"key":"k","modifiers":[)" +
            QByteArray("\"a\",").repeated(1'000'000) + "0]}}"),
    };
    for (const QByteArray& text : texts) {
        SCOPED_TRACE(text.left(40).constData());
        QElapsedTimer timer;
        timer.start();
        const DecodingError error = errorOf(text);
        EXPECT_NE(error.description, u"(no error)"_s);
        EXPECT_LT(timer.elapsed(), 10'000) << "under the sanitizers";
    }
}

} // namespace
} // namespace velmora
