#pragma once

#include "platform/x11/base/X11Connection.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QSize>
#include <gtest/gtest.h>

namespace velmora::test {

/// The program's display; set by main().
extern TestDisplay* display;

/// Width and height of that display in pixels; odd, so that a fractional scale leaves a rest.
inline constexpr QSize displaySize(1367, 769);

/// A test on the display, with our connection and another client's.
class DisplayTest : public testing::Test {
protected:
    DisplayTest() { connection->startDelivery(); }

    XClient client;
    std::unique_ptr<X11Connection> connection = X11Connection::open();
};

/// The sessions that can be had here.
std::vector<const char*> sessions();

/// What runs beside us: "none", or a window manager, or one and a compositor, as "openbox+picom".
class SessionTest : public DisplayTest, public testing::WithParamInterface<const char*> {
protected:
    SessionTest();
    ~SessionTest() override;

    bool hasManager() const { return !managers_.empty(); }

private:
    std::vector<QProcess*> managers_;
};

} // namespace velmora::test
