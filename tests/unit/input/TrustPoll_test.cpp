#include "input/TrustPoll.h"

#include "support/FakeAccessibility.h"
#include "support/TestDisplay.h"

#include <gtest/gtest.h>
#include <optional>

using namespace std::chrono_literals;

namespace velmora {
namespace {

class TrustPollTest : public testing::Test {
protected:
    TrustPollTest() { accessibility_.trusted = false; }

    test::FakeAccessibility accessibility_;
    int told_ = 0;
    std::optional<TrustPoll> poll_{std::in_place, accessibility_, 1ms};
};

TEST_F(TrustPollTest, WaitsAgainWhenStartedFromWhatItTells) {
    poll_->start([&] {
        accessibility_.trusted = false;
        poll_->start([&] { ++told_; });
    });
    accessibility_.trusted = true;
    ASSERT_TRUE(test::waitFor([&] { return !accessibility_.trusted; }));
    EXPECT_TRUE(poll_->isActive());
    accessibility_.trusted = true;
    EXPECT_TRUE(test::waitFor([&] { return told_ == 1; }));
}

TEST_F(TrustPollTest, TellsNobodyOnceItIsGone) {
    poll_->start([&] { ++told_; });
    accessibility_.trusted = true;
    poll_.reset();
    TrustPoll other(accessibility_, 1ms);
    bool otherTold = false;
    other.start([&] { otherTold = true; });
    ASSERT_TRUE(test::waitFor([&] { return otherTold; }));
    EXPECT_EQ(told_, 0);
    EXPECT_EQ(accessibility_.questions, 1);
}

} // namespace
} // namespace velmora
