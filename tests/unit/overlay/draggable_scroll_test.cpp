#include "overlay/DraggableNSScrollView.h"

#include "overlay/ShortcutButtonView.h"
#include "support/Mouse.h"

#include <QWheelEvent>
#include <cmath>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using Kind = LocalMouseEvent::Kind;

/// A strip of 200 points at (50, 4) of a window, with content of 1000 points: offsets 0 to 800.
class DraggableScrollTest : public testing::Test {
protected:
    DraggableScrollTest() {
        window.resize(300, 32);
        strip.setGeometry(50, 4, 200, 24);
        setContentWidth(1000);
        window.show();
    }

    void setContentWidth(int width) {
        auto* content = new QWidget;
        content->resize(width, 10);
        strip.setDocumentView(content);
    }

    /// Hands the strip an event at a point of its own coordinates.
    void send(Kind kind, QPointF at, QWidget* in = nullptr, double movement = 0) {
        strip.handleMouseEvent({kind, in ? in : &window, at + QPointF(50, 4), {movement, 0}});
    }
    void press(double x) { send(Kind::leftMouseDown, {x, 10}); }
    void drag(double x) { send(Kind::leftMouseDragged, {x, 10}); }
    void release(double x, double movement = 0) {
        send(Kind::leftMouseUp, {x, 10}, nullptr, movement);
    }

    void coastToRest() {
        for (int tick = 0; strip.isCoasting() && tick < 1000; ++tick)
            strip.handleDecelerationStep();
    }

    QWidget window;
    DraggableNSScrollView strip{&window};
};

TEST_F(DraggableScrollTest, StartsDraggingBeyondFivePointsInAnyDirection) {
    press(100);
    drag(95);
    EXPECT_FALSE(strip.isDraggingMode()) << "exactly 5 points are not enough";
    drag(93);
    EXPECT_EQ(strip.offset(), 2) << "movement before the threshold is never scrolled";
    drag(97);
    EXPECT_EQ(strip.offset(), 0) << "once dragging, coming back close to the press still scrolls";
    press(100);
    send(Kind::leftMouseDragged, {103, 14});
    EXPECT_FALSE(strip.isDraggingMode()) << "3 across and 4 down are 5 points";
    release(90, 9);
    EXPECT_FALSE(strip.isCoasting()) << "a click";
    press(100);
    send(Kind::leftMouseDragged, {103, 14.1});
    EXPECT_TRUE(strip.isDraggingMode());
}

TEST_F(DraggableScrollTest, StaysBetweenItsEndsWhateverTheContent) {
    for (const auto& [delta, offset] : {std::pair(-300.0, 300.0), {100.5, 199.5}, {-5000, 800}}) {
        strip.scrollBy(delta);
        EXPECT_EQ(strip.offset(), offset);
        EXPECT_EQ(strip.documentView()->x(), -std::lround(offset));
    }
    strip.documentView()->resize(500, 24);
    EXPECT_EQ(strip.offset(), 300);
    strip.resize(450, 24);
    EXPECT_EQ(strip.offset(), 50);
    strip.scrollBy(5000);
    EXPECT_EQ(strip.offset(), 0);
    setContentWidth(120);
    strip.scrollBy(-50);
    strip.startDeceleration(-20);
    coastToRest();
    EXPECT_EQ(strip.offset(), 0);
    strip.setAlignment(DraggableNSScrollView::Alignment::trailing);
    EXPECT_EQ(strip.documentView()->x(), 330);
}

TEST_F(DraggableScrollTest, CoastsWithTheMovementThatTheReleaseTells) {
    for (const double movement : {-10.0, 10.0, -1.0, 0.99, 0.0}) {
        strip.scrollBy(5000);
        strip.scrollBy(-400);
        press(100);
        drag(80);
        release(70, movement);
        EXPECT_EQ(strip.isCoasting(), std::abs(movement) >= 1) << movement;
        EXPECT_TRUE(!strip.isCoasting() || strip.currentVelocity() == movement) << movement;
        EXPECT_EQ(strip.offset(), 420) << "the release itself scrolls nothing";
    }
    strip.startDeceleration(-10);
    send(Kind::leftMouseDown, {-1, 10});
    EXPECT_TRUE(strip.isCoasting()) << "a press beside the strip is none of its business";
    press(10);
    EXPECT_FALSE(strip.isCoasting());
}

TEST_F(DraggableScrollTest, SlowsDownByTwoPercentATickAndStopsAtAnEnd) {
    strip.startDeceleration(-10);
    coastToRest();
    // 10 x 0.98^n stays at or above 0.5 up to n = 148; the tick that falls below does not move.
    double travelled = 0;
    for (int tick = 1; tick <= 148; ++tick)
        travelled += 10 * std::pow(0.98, tick);
    EXPECT_NEAR(strip.offset(), travelled, 1e-9);
    strip.startDeceleration(-50);
    coastToRest();
    EXPECT_EQ(strip.offset(), 800);
}

TEST_F(DraggableScrollTest, EventsOfOtherWindowsOrOutsideChangeNothing) {
    QWidget other;
    press(100);
    send(Kind::leftMouseDragged, {50, 10}, &other);
    send(Kind::leftMouseDragged, {100, 24}); // the first row below the strip
    send(Kind::leftMouseDragged, {200, 10}); // the first column right of it
    strip.handleMouseEvent({Kind::leftMouseDragged, nullptr, {100, 10}});
    EXPECT_FALSE(strip.isDraggingMode());
    drag(80);
    send(Kind::leftMouseUp, {70, 40}, nullptr, 9);
    EXPECT_TRUE(strip.isDraggingMode()) << "a release outside is not noticed";
    EXPECT_FALSE(strip.isCoasting());
    press(10);
    EXPECT_FALSE(strip.isDraggingMode());
    press(-20);
    drag(10);
    drag(5);
    EXPECT_EQ(strip.offset(), 20) << "a drag that began beside the strip is not its own";
}

TEST_F(DraggableScrollTest, ScrollsWithWheelAndTouchpad) {
    const struct {
        QPoint pixels, angle;
        double offset;
    } turns[] = {{{}, {0, -120}, 48}, {{}, {-120, 0}, 96}, {{-7, 3}, {-56, 24}, 103}};
    strip.startDeceleration(-10);
    for (const auto& [pixels, angle, offset] : turns) {
        QWheelEvent event({}, {}, pixels, angle, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&strip, &event);
        EXPECT_EQ(strip.offset(), offset);
        EXPECT_FALSE(strip.isCoasting());
    }
}

TEST_F(DraggableScrollTest, HoverFollowsContentThatMovesUnderARestingPointer) {
    const ShortcutButton record({}, {}, OpenUrl{});
    ShortcutButtonView first(record, strip.documentView());
    ShortcutButtonView second(record, strip.documentView());
    for (QWidget* view : {&first, &second}) {
        view->setGeometry(view == &first ? 0 : 100, 0, 100, 24);
        view->show();
    }
    QCursor::setPos(window.mapToGlobal(QPoint(100, 16)));
    test::Mouse(window).hover({100, 16});
    ASSERT_TRUE(first.isHovered());
    strip.scrollBy(-100);
    EXPECT_TRUE(!first.isHovered() && second.isHovered());
}

} // namespace
} // namespace velmora
