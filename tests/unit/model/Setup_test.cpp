#include "model/Setup.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const Setup full{
    {{u"a"_s, u"star"_s, LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}},
     {QChar(0xD800), u""_s, PressKeyCombo{{u"Command"_s}, u"L"_s}, ButtonAlignment::right}},
    {{3, OpenUrl{u"u"_s}}},
    {HotKey{{u"Command"_s}, 49, u"Space"_s}, true, false}};

QByteArray with(const QByteArray& before, const QByteArray& after) {
    QByteArray text = encodedSetup(full);
    const qsizetype at = text.indexOf(before);
    EXPECT_GE(at, 0) << before.constData();
    return text.replace(at, before.size(), after);
}

TEST(SetupTest, ReadsBackWhatItWrote) {
    for (const velmora::Setup& setup :
         {full, velmora::Setup{}, velmora::Setup{{}, {}, {std::nullopt, false, std::nullopt}}}) {
        const QByteArray text = encodedSetup(setup);
        const auto read = decodedSetup(text);
        ASSERT_TRUE(std::holds_alternative<velmora::Setup>(read)) << text.constData();
        EXPECT_EQ(encodedSetup(std::get<velmora::Setup>(read)), text);
    }
}

TEST(SetupTest, SaysWhatIsWrongAndWhere) {
    const QByteArray many = "[" + QByteArray("{},").repeated(99'999) + "{}]";
    const std::pair<QByteArray, QString> cases[] = {
        {"", {}},
        {encodedSetup(full).chopped(3), {}},
        {"[]", {}},
        {"{}", u"version"_s},
        {with("\"version\":1", "\"version\":2"), u"version"_s},
        {with("\"version\":1", "\"version\":\"1\""), u"version"_s},
        {with("\"buttons\"", "\"Buttons\""), u"buttons"_s},
        {with("\"mouseBindings\":[", "\"mouseBindings\":[{},"), u"mouseBindings/Index 0/id"_s},
        {with("pressKeyCombo", "pressKey"), u"buttons/Index 1/action"_s},
        {with("\"buttonNumber\":3", "\"buttonNumber\":3.5"),
         u"mouseBindings/Index 0/buttonNumber"_s},
        {with("\"barAtTopEdge\":true", "\"barAtTopEdge\":1"), u"preferences/barAtTopEdge"_s},
        {with("[\"Command\"],\"keyCode", "[\"Shift\"],\"keyCode"), u"preferences/hotKey"_s},
        {"{\"version\":1,\"buttons\":" + many + "}", u"buttons"_s},
        {"{\"version\":1,\"buttons\":[],\"mouseBindings\":[],\"preferences\":null}",
         u"preferences"_s},
    };
    for (const auto& [json, path] : cases) {
        SCOPED_TRACE(json.left(300).constData());
        QElapsedTimer timer;
        timer.start();
        const auto read = decodedSetup(json);
        const auto* error = std::get_if<DecodingError>(&read);
        ASSERT_TRUE(error);
        EXPECT_TRUE(error->codingPath.join(u'/').startsWith(path))
            << qPrintable(error->codingPath.join(u'/'));
        EXPECT_EQ(error->codingPath.isEmpty(), path.isEmpty());
        EXPECT_LT(timer.elapsed(), 5000);
    }
}

} // namespace
} // namespace velmora
