#pragma once

#include "platform/Screens.h"

namespace velmora::test {

/// Screens whose primary one the test sets.
class FakeScreens : public Screens {
public:
    std::optional<Screen> mainScreen() const override { return screen; }

    /// Sets it and tells.
    void change(const std::optional<Screen>& now) {
        screen = now;
        Q_EMIT changed();
    }

    std::optional<Screen> screen;
};

/// A screen of that size in points at the origin, with a cut-out of `top` points.
inline Screen screenOf(double width, double height, double top = 0) {
    return {{0, 0, width, height}, {0, top, 0, 0}};
}

} // namespace velmora::test
