#pragma once

#include "platform/Screen.h"

namespace velmora::test {

/// Screens whose primary one the test sets.
class FakeScreens : public Screens {
public:
    std::optional<Screen> mainScreen() const override { return screen; }

    std::optional<Screen> screen;
};

/// A screen of that size in points at the origin, with a cut-out of `top` points.
inline Screen screenOf(double width, double height, double top = 0) {
    return {{0, 0, width, height}, {0, top, 0, 0}};
}

} // namespace velmora::test
