#include "viewkit/DragThrottle.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DragThrottle, DeliversTheFirstPositionAtOnceAndThenOneIn16Milliseconds) {
    DragThrottle throttle;
    EXPECT_EQ(throttle.move({1, 0}, 100), QPointF(1, 0));
    EXPECT_FALSE(throttle.move({2, 0}, 101));
    EXPECT_FALSE(throttle.move({3, 0}, 115));
    EXPECT_EQ(throttle.remaining(115), 1u);
    EXPECT_EQ(throttle.move({4, 0}, 116), QPointF(4, 0));
    EXPECT_FALSE(throttle.remaining(116)) << "nothing may be delivered twice";
}

TEST(DragThrottle, KeepsTheLatestPositionPendingUntilItIsDue) {
    DragThrottle throttle;
    throttle.move({1, 0}, 100);
    throttle.move({2, 0}, 104);
    throttle.move({3, 0}, 106);
    EXPECT_EQ(throttle.remaining(106), 10u);
    EXPECT_EQ(throttle.takePending(116), QPointF(3, 0));
    EXPECT_FALSE(throttle.takePending(132));
    EXPECT_FALSE(throttle.move({4, 0}, 120)) << "the delivery at 116 starts the next interval";
}

TEST(DragThrottle, ForgetsPendingMotionOnReset) {
    DragThrottle throttle;
    throttle.move({1, 0}, 100);
    throttle.move({2, 0}, 101);
    throttle.reset();
    EXPECT_FALSE(throttle.remaining(200));
    EXPECT_EQ(throttle.move({3, 0}, 102), QPointF(3, 0));
}

TEST(DragThrottle, DeliversWhenTheClockWrapsAround) {
    DragThrottle throttle;
    throttle.move({1, 0}, 0xffffffff);
    EXPECT_EQ(throttle.move({2, 0}, 5), QPointF(2, 0));
}

} // namespace
} // namespace velmora
