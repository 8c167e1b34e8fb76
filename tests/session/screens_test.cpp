// The bar where the desktop changes under it: its panels, windows and resolution.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// A desktop's panel at the top of the screen.
class Dock {
public:
    Dock() : window_(xcb_generate_id(client_)) {
        xcb_create_window(
            client_, XCB_COPY_FROM_PARENT, window_, client_.root(), 0, 0, 1280, 30, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {client_.atom("_NET_WM_WINDOW_TYPE_DOCK")});
        xcb_map_window(client_, window_);
        client_.sync();
    }

    void reserve(uint32_t depth) {
        set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
            {0, 0, depth, 0, 0, 0, 0, 0, 0, 1279, 0, 0});
        client_.sync();
    }

private:
    void set(const QByteArray& name, xcb_atom_t type, const std::vector<uint32_t>& numbers) {
        xcb_change_property(
            client_, XCB_PROP_MODE_REPLACE, window_, client_.atom(name), type, 32,
            static_cast<uint32_t>(numbers.size()), numbers.data());
    }

    XClient client_;
    xcb_window_t window_;
};

class Screens : public testing::TestWithParam<const char*> {
protected:
    Screens() {
        session.launch();
        EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
    }

    /// Whether the bar is there in the end, and maximised windows begin there.
    bool liesAt(const QRect& bar, int windowsTop) {
        return waitFor([&] {
            const auto room = session.client().property(session.client().root(), "_NET_WORKAREA");
            return session.bar()->geometry == bar && room.size() > 3 &&
                   room[1] == static_cast<uint32_t>(windowsTop);
        });
    }

    Session session{{.screen = {1280, 800}, .windowManager = QString::fromLatin1(GetParam())}};
};

TEST_P(Screens, TheBarLiesBelowPanelsAndAboveWindowsWhileItIsShown) {
    EXPECT_TRUE(liesAt({0, 0, 1280, 24}, 24));
    auto dock = std::make_optional<Dock>();
    dock->reserve(30);
    EXPECT_TRUE(liesAt({0, 30, 1280, 24}, 54));
    dock->reserve(0);
    EXPECT_TRUE(liesAt({0, 0, 1280, 24}, 24));
    dock->reserve(40);
    EXPECT_TRUE(liesAt({0, 40, 1280, 24}, 64));
    session.pressHotKey();
    EXPECT_TRUE(liesAt({0, 40, 1280, 24}, 40));
    session.pressHotKey();
    EXPECT_TRUE(liesAt({0, 40, 1280, 24}, 64));
    dock.reset();
    EXPECT_TRUE(liesAt({0, 0, 1280, 24}, 24));
}

TEST_P(Screens, TheBarFollowsTheResolutionShownOrHidden) {
    session.display().setResolution({1024, 600});
    EXPECT_TRUE(liesAt({0, 0, 1024, 24}, 24));
    EXPECT_TRUE(waitFor([&] {
        const auto buttons = session.buttons();
        return buttons.size() == 4 && buttons.back().right() > 900 && buttons.back().right() < 1024;
    }));
    session.pressHotKey();
    EXPECT_TRUE(waitFor([&] { return !session.isBarShown(); }));
    session.display().setResolution({1280, 800});
    EXPECT_TRUE(liesAt({0, 0, 1280, 24}, 0));
    EXPECT_FALSE(session.isBarShown());
    session.pressHotKey();
    EXPECT_TRUE(
        waitFor([&] { return session.isBarShown() && session.buttons().back().right() > 1024; }));
}

INSTANTIATE_TEST_SUITE_P(
    Managers, Screens, testing::Values("openbox", "xfwm4"),
    [](const auto& manager) { return std::string(manager.param); });

} // namespace
