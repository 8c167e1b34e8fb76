#include "viewkit/DragThrottle.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DragThrottle, DeliversAtOnceAndThenTheLatestPositionIn16Milliseconds) {
    DragThrottle throttle;
    EXPECT_EQ(throttle.move({1, 0}, 100), QPointF(1, 0));
    EXPECT_FALSE(throttle.move({2, 0}, 101));
    EXPECT_FALSE(throttle.move({3, 0}, 115));
    EXPECT_EQ(throttle.remaining(115), 1u);
    EXPECT_EQ(throttle.takePending(116), QPointF(3, 0));
    EXPECT_FALSE(throttle.takePending(132)) << "nothing may be delivered twice";
    EXPECT_FALSE(throttle.move({4, 0}, 131)) << "the delivery at 116 starts the next interval";
    EXPECT_EQ(throttle.move({5, 0}, 132), QPointF(5, 0));
    EXPECT_FALSE(throttle.remaining(132));

    throttle.move({6, 0}, 133);
    throttle.reset();
    EXPECT_FALSE(throttle.remaining(200));
    EXPECT_EQ(throttle.move({7, 0}, 134), QPointF(7, 0));
    throttle.move({8, 0}, 0xffffffff);
    EXPECT_EQ(throttle.move({9, 0}, 5), QPointF(9, 0)) << "the clock wraps around";
}

} // namespace
} // namespace velmora
