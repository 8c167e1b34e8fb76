#include "model/StoredForm.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using enum DecodingError::Kind;

constexpr auto goodId = "\"id\":\"0F8FAD5B-D9CB-469F-A165-70867728950E\"";

QByteArray buttonText(const QByteArray& action) {
    return QByteArray("[{") + goodId + R"(,"title":"t","icon":"i","action":)" + action +
           R"(,"alignment":"left"}])";
}

/// The error that reading `json` ends with; its description says so when it reads well.
DecodingError errorOf(const QByteArray& json) {
    const auto decoded = decodedList(json, readButton);
    const auto* error = std::get_if<DecodingError>(&decoded);
    return error ? *error : DecodingError{dataCorrupted, {}, u"(no error)"_s};
}

QList<ShortcutButton> read(const QByteArray& json) {
    EXPECT_EQ(errorOf(json).description, u"(no error)"_s);
    return std::get<0>(decodedList(json, readButton));
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
        DecodingError::Kind kind;
        QString path;
    } failures[] = {
        {"", dataCorrupted, {}},
        {good + good, dataCorrupted, {}},
        {with("\"t\"", "\"\xff\""), dataCorrupted, {}},
        {QByteArray(1'000'000, '['), dataCorrupted, {}},
        {"[" + QByteArray("0,").repeated(1'000'000) + "0]", typeMismatch, u"Index 0"_s},
        {"{}", typeMismatch, {}},
        {"[null]", valueNotFound, u"Index 0"_s},
        {with("\"id\"", "\"ID\""), keyNotFound, u"Index 0/id"_s},
        {with("\"0F8F", "\"0F8"), dataCorrupted, u"Index 0/id"_s},
        {with("\"t\"", "null"), valueNotFound, u"Index 0/title"_s},
        {with("\"i\"", "7"), typeMismatch, u"Index 0/icon"_s},
        {with("\"action\"", "\"Action\""), keyNotFound, action},
        {with("\"left\"", "\"center\""), dataCorrupted, u"Index 0/alignment"_s},
        {buttonText("{}"), typeMismatch, action},
        {buttonText(R"({"LaunchApp":{"name":"n"}})"), typeMismatch, action},
        {buttonText(R"({"launchApp":{"name":"n"},"openURL":{"url":"u"}})"), typeMismatch, action},
        {buttonText(R"({"openURL":"u"})"), typeMismatch, action + u"/openURL"_s},
        {buttonText(R"({"openURL":{}})"), keyNotFound, action + u"/openURL/url"_s},
        {buttonText(R"({"launchApp":{"name":"n","bundleId":1}})"), typeMismatch,
         action + u"/launchApp/bundleId"_s},
        {buttonText(R"({"pressKeyCombo":{"modifiers":["Command",1],"key":"k"}})"), typeMismatch,
         action + u"/pressKeyCombo/modifiers/Index 1"_s},
        {good.chopped(1) + "," + good.sliced(1).replace("\"t\"", "[]"), typeMismatch,
         u"Index 1/title"_s},
    };
    for (const auto& failure : failures) {
        SCOPED_TRACE(failure.json.left(200).constData());
        const DecodingError error = errorOf(failure.json);
        EXPECT_EQ(error.kind, failure.kind);
        EXPECT_EQ(error.codingPath.join(u'/'), failure.path);
        EXPECT_NE(error.description, u"(no error)"_s);
        EXPECT_EQ(
            error.description == u"Invalid number of keys found, expected one."_s,
            failure.json.contains("action\":{") && failure.path == action);
    }
}

TEST(StoredFormTest, WritesTheAgreedMembersAndReadsWhatIsAllowed) {
    const QString lone = QChar(0xD800) + u"x"_s + QChar(0xDC00) + QChar(0xD83D);
    const struct {
        ShortcutAction action;
        QByteArray written;
        QByteArray alsoRead = {};
    } cases[] = {
        {LaunchApp{u"n"_s, u"b"_s}, R"({"launchApp":{"name":"n","bundleId":"b"}})"},
        {LaunchApp{u"n"_s, std::nullopt}, R"({"launchApp":{"name":"n"}})",
         R"({"launchApp":{"name":"n","bundleId":null,"x":[1]},"comment":"c"})"},
        {OpenUrl{u"a/b"_s}, R"({"openURL":{"url":"a/b"}})",
         R"( { "openURL" : { "url" : "a\/b" } } )"},
        {OpenUrl{lone}, R"({"openURL":{"url":"\ud800x\udc00\ud83d"}})"},
        {OpenUrl{u"a"_s + QChar(0) + u"\"\\\n😀"_s}, R"({"openURL":{"url":"a\u0000\"\\\u000a😀"}})"},
        {ExecuteShellCommand{QString(100'000, u'ス')},
         R"({"executeShellCommand":{"command":")" + QByteArray("ス").repeated(100'000) + "\"}}"},
        {PressKeyCombo{{}, u"←"_s}, R"({"pressKeyCombo":{"modifiers":[],"key":"←"}})",
         R"({"pressKeyCombo":{"modifiers":[],"key":"\u2190"}})"},
        {PressKeyCombo{{u"b"_s, u"a"_s}, u""_s},
         R"({"pressKeyCombo":{"modifiers":["b","a"],"key":""}})"},
    };
    for (const auto& [action, written, alsoRead] : cases) {
        SCOPED_TRACE(written.left(100).constData());
        const QUuid id = QUuid::fromString(QLatin1StringView(goodId).sliced(6, 36));
        const ShortcutButton made(u"t"_s, u"i"_s, action, ButtonAlignment::left, id);
        EXPECT_EQ(encodedList(QList{made}), buttonText(written));
        for (const QByteArray& text : {written, alsoRead.isEmpty() ? written : alsoRead}) {
            const auto buttons = read("\xEF\xBB\xBF" + buttonText(text).replace("left", "right"));
            ASSERT_EQ(buttons.size(), 1);
            EXPECT_EQ(buttons[0].action, action);
            EXPECT_EQ(encodedList(buttons), buttonText(written).replace("left", "right"));
        }
    }
    EXPECT_TRUE(read("[]").isEmpty());
}

TEST(StoredFormTest, AnIdIsTheCanonicalTextInEitherCase) {
    const QByteArray good = buttonText(R"({"openURL":{"url":"u"}})");
    const QByteArray upper = "0F8FAD5B-D9CB-469F-A165-70867728950E";
    EXPECT_EQ(encodedList(read(QByteArray(good).replace(upper, upper.toLower()))), good);
    for (const char* id :
         {"", "{0F8FAD5B-D9CB-469F-A165-70867728950E}", "0F8FAD5BD9CB469FA16570867728950E",
          "0F8FAD5B-D9CB-469F-A165-70867728950E ", "0F8FAD5B-D9CB-469F-A165-70867728950G",
          "0F8FAD5BD-9CB-469F-A165-70867728950E", "{0F8FAD5B-D9CB-469F-A165-70867728950",
          "+F8FAD5B-D9CB-469F-A165-70867728950E", "0F8FAD5B-D9CB-469F-A165-708677289\u0665\u0665E"})
        EXPECT_EQ(errorOf(QByteArray(good).replace(upper, id)).codingPath.last(), u"id"_s) << id;
}

} // namespace
} // namespace velmora
