#pragma once

#include "platform/x11/X11SingleInstance.h"

namespace velmora::test {

/// What a launch has of the session.
struct Launch {
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    X11SingleInstance instance{*connection};
};

/// Names the file that a relaunched instance of the test program makes once it has the place.
constexpr char relaunchMark[] = "VELMORA_TEST_RELAUNCH_MARK";

} // namespace velmora::test
