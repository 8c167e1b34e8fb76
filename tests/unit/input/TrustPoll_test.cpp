#include "input/TrustPoll.h"

#include "support/FakeAccessibility.h"
#include "support/TestDisplay.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace velmora {
namespace {

TEST(TrustPollTest, WaitsAgainWhenStartedFromWhatItTells) {
    test::FakeAccessibility accessibility;
    accessibility.trusted = false;
    TrustPoll poll(accessibility, 1ms);
    bool told = false;
    poll.start([&] {
        accessibility.trusted = false;
        poll.start([&] { told = true; });
    });
    accessibility.trusted = true;
    ASSERT_TRUE(test::waitFor([&] { return !accessibility.trusted; }));
    accessibility.trusted = true;
    EXPECT_TRUE(test::waitFor([&] { return told; }));
}

} // namespace
} // namespace velmora
