#include "model/MouseButtonBinding.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto greatest = std::numeric_limits<std::int64_t>::max();

TEST(MouseButtonBindingTest, ReadsIntegersOfAnySpellingAndNothingElse) {
    using Kind = DecodingError::Kind;
    const QByteArray element =
        R"({"extra":null,"id":"01234567-89ab-cdef-0123-456789ABCDEF","buttonNumber":3,)"
        R"("action":{"openURL":{"url":"u"},"comment":1}})";
    const std::pair<const char*, std::variant<std::int64_t, Kind>> cases[] = {
        {"3", 3},
        {"3.0", 3},
        {"-0", 0},
        {"9223372036854775807", greatest},
        {"-9223372036854775808", least},
        {"3.5", Kind::dataCorrupted},
        {"9223372036854775808", Kind::dataCorrupted},
        {"1e300", Kind::dataCorrupted},
        {"\"3\"", Kind::typeMismatch},
        {"true", Kind::typeMismatch},
        {"null", Kind::valueNotFound}};
    for (const auto& [number, outcome] : cases) {
        SCOPED_TRACE(number);
        const auto decoded = decodedList(
            '[' + QByteArray(element).replace(":3,", ':' + QByteArray(number) + ',') + ']',
            readMouseButtonBinding);
        if (const auto* error = std::get_if<DecodingError>(&decoded)) {
            EXPECT_EQ(outcome, decltype(outcome)(error->kind));
            EXPECT_EQ(error->codingPath.join(u'/'), u"Index 0/buttonNumber"_s);
        } else {
            EXPECT_EQ(outcome, decltype(outcome)(std::get<0>(decoded).front().buttonNumber));
        }
    }
}

} // namespace
} // namespace velmora
