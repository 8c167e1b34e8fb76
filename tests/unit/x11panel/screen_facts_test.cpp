#include "platform/x11/screens/CutOut.h"
#include "platform/x11/session/X11Accessibility.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(SafeAreaInsetsTest, TakesFourSensibleNumbersOnly) {
    const QSize screen(3024, 1964);
    const struct {
        std::vector<std::uint32_t> values;
        std::optional<QMargins> insets;
    } cases[] = {
        {{74, 0, 0, 0}, QMargins(0, 74, 0, 0)},
        {{1, 2, 3, 4}, QMargins(2, 1, 4, 3)},
        {{0, 0, 0, 0}, QMargins()},
        {{}, std::nullopt},
        {{74}, std::nullopt},
        {{1964, 0, 0, 0}, std::nullopt},
        {{1963, 0, 0, 0}, QMargins(0, 1963, 0, 0)},
        {{1000, 0, 1000, 0}, std::nullopt},
        {{74, 3024, 0, 0}, std::nullopt},
        {{0xffffffff, 0, 1, 0}, std::nullopt},
    };
    for (const auto& [values, insets] : cases)
        EXPECT_EQ(statedInsets(values, screen), insets) << testing::PrintToString(values);
}

TEST(NotchedLaptopsTest, NeedsTheMachineAndAModeWithTheNotchRows) {
    const struct {
        QByteArray compatible;
        QSize mode;
        int height;
    } cases[] = {
        {QByteArray("apple,j314s\0apple,t6000\0apple,arm-platform\0", 44), {3024, 1964}, 74},
        {"apple,j316c", {3456, 2234}, 74},
        {"apple,j615", {2880, 1864}, 64},
        {"apple,j314s", {3024, 1890}, 0}, // the rows beside the notch are left out
        {"apple,j314s", {1964, 3024}, 0},
        {"apple,j314s", {3456, 2234}, 0}, // another screen than its own
        {"apple,j313", {2560, 1600}, 0},
        {"apple,j3145", {3024, 1964}, 0},
        {"", {3024, 1964}, 0},
    };
    for (const auto& [compatible, mode, height] : cases)
        EXPECT_EQ(knownCutoutHeight(compatible, mode), height) << compatible.constData();
}

TEST(AccessibilityTest, WaylandIsToldBySurestSignFirst) {
    const struct {
        bool xwayland;
        QByteArray type, display;
        bool wayland;
    } cases[] = {
        {false, "x11", "", false},          {false, "", "", false},
        {false, "tty", "", false},          {false, "wayland", "", true},
        {false, "", "wayland-0", true},     {false, "tty", "wayland-1", true},
        {false, "x11", "wayland-0", false}, {true, "x11", "", true},
    };
    for (const auto& [xwayland, type, display, wayland] : cases)
        EXPECT_EQ(isWaylandSession(xwayland, type, display), wayland)
            << xwayland << type.constData() << display.constData();
}

} // namespace
} // namespace velmora
