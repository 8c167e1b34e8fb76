#include "input/MouseButtonBinding.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto greatest = std::numeric_limits<std::int64_t>::max();

/// A catalogue with the one text that has a placeholder.
class ButtonFormat : public QTranslator {
public:
    ButtonFormat() { QCoreApplication::installTranslator(this); }
    QString translate(const char*, const char* key, const char*, int) const override {
        return QLatin1StringView(key) == "mouse_click_btn_format"_L1 ? u"Button %1"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(MouseButtonBindingTest, ButtonsAreNamedAndCountedFromOne) {
    const ButtonFormat format;
    const std::pair<std::int64_t, QString> cases[] = {
        {0, u"mouse_click_left"_s},
        {1, u"mouse_click_right"_s},
        {2, u"mouse_click_middle"_s},
        {3, u"mouse_click_btn4"_s},
        {4, u"mouse_click_btn5"_s},
        {5, u"Button 6"_s},
        {7, u"Button 8"_s},
        {-1, u"Button 0"_s},
        {-2, u"Button -1"_s},
        {least, u"Button -9223372036854775807"_s},
        {greatest - 1, u"Button 9223372036854775807"_s},
        {greatest, u"Button 9223372036854775808"_s},
    };
    for (const auto& [number, name] : cases)
        EXPECT_EQ(MouseButtonBinding(number, OpenUrl{}).buttonDisplayName(), name);
}

TEST(MouseButtonBindingTest, IdentityIsTheIdAlone) {
    const MouseButtonBinding one(3, OpenUrl{u"a"_s});
    const MouseButtonBinding changed(4, ExecuteShellCommand{u"b"_s}, one.id());
    const MouseButtonBinding twin(3, OpenUrl{u"a"_s});
    EXPECT_EQ(one, changed);
    EXPECT_EQ(qHash(one), qHash(changed));
    EXPECT_FALSE(one == twin);
}

TEST(MouseButtonBindingTest, StoredFormComesBackWhole) {
    const QList<MouseButtonBinding> bindings = {
        {3, LaunchApp{u"Safari"_s, std::nullopt}},
        {least, OpenUrl{u"https://例え.jp/?a=\"%1\""_s}},
        {greatest, ExecuteShellCommand{u"echo 'a'\n"_s}},
        {(std::int64_t(1) << 53) + 1, PressKeyCombo{{}, u"←"_s}},
    };
    const QByteArray json = encodedList(bindings);
    EXPECT_TRUE(json.contains(bindings[0].id().toByteArray(QUuid::WithoutBraces).toUpper()));
    const auto decoded = decodedList(json, readMouseButtonBinding);
    ASSERT_TRUE(std::holds_alternative<QList<MouseButtonBinding>>(decoded));
    const auto& read = std::get<QList<MouseButtonBinding>>(decoded);
    ASSERT_EQ(read.size(), bindings.size());
    for (qsizetype index = 0; index < read.size(); ++index) {
        EXPECT_EQ(read[index].id(), bindings[index].id());
        EXPECT_EQ(read[index].buttonNumber, bindings[index].buttonNumber);
        EXPECT_EQ(read[index].action, bindings[index].action);
    }
    EXPECT_EQ(encodedList(read), json);
}

TEST(MouseButtonBindingTest, ReadsIntegersOfAnySpellingAndNothingElse) {
    using Kind = DecodingError::Kind;
    const struct {
        QByteArray number;
        std::variant<std::int64_t, Kind> outcome;
    } cases[] = {
        {"3", 3},
        {"3.0", 3},
        {"3e0", 3},
        {"-0", 0},
        {"9223372036854775807", greatest},
        {"-9223372036854775808", least},
        {"3.5", Kind::dataCorrupted},
        {"0.5", Kind::dataCorrupted},
        {"9223372036854775808", Kind::dataCorrupted},
        {"1e300", Kind::dataCorrupted},
        {"\"3\"", Kind::typeMismatch},
        {"true", Kind::typeMismatch},
        {"[3]", Kind::typeMismatch},
        {"null", Kind::valueNotFound},
    };
    for (const auto& [number, outcome] : cases) {
        SCOPED_TRACE(number.constData());
        const QByteArray json =
            R"([{"extra":null,"id":"01234567-89ab-cdef-0123-456789ABCDEF","buttonNumber":)" +
            number + R"(,"action":{"openURL":{"url":"u"},"comment":1}}])";
        const auto decoded = decodedList(json, readMouseButtonBinding);
        if (const auto* kind = std::get_if<Kind>(&outcome)) {
            ASSERT_TRUE(std::holds_alternative<DecodingError>(decoded));
            const auto& error = std::get<DecodingError>(decoded);
            EXPECT_EQ(error.kind, *kind);
            EXPECT_EQ(error.codingPath, (QStringList{u"Index 0"_s, u"buttonNumber"_s}));
        } else {
            ASSERT_TRUE(std::holds_alternative<QList<MouseButtonBinding>>(decoded));
            EXPECT_EQ(std::get<0>(decoded).front().buttonNumber, std::get<0>(outcome));
        }
    }
}

TEST(MouseButtonBindingTest, OneBadElementFailsTheList) {
    const QByteArray good = encodedList(QList{MouseButtonBinding(3, OpenUrl{u"u"_s})});
    const auto element = good.mid(1, good.size() - 2);
    for (const char* member : {"id", "buttonNumber", "action"}) {
        SCOPED_TRACE(member);
        QByteArray bad = element;
        bad.replace(QByteArray(member) + '"', QByteArray(member) + "X\"");
        const auto decoded = decodedList('[' + element + ',' + bad + ']', readMouseButtonBinding);
        ASSERT_TRUE(std::holds_alternative<DecodingError>(decoded));
        EXPECT_EQ(
            std::get<DecodingError>(decoded).codingPath,
            (QStringList{u"Index 1"_s, QString::fromLatin1(member)}));
    }
}

} // namespace
} // namespace velmora
