// Two monitors: the bar lies on the primary one, and nowhere else.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

TEST(Monitors, TheBarLiesOnThePrimaryOne) {
    struct Case {
        const char* description;
        QString left, right; ///< the monitors' names; the primary's begins with a star
        QRect bar;
    };
    const Case cases[] = {
        {"left", u"*left"_s, u"right"_s, {0, 0, 800, 24}},
        {"right", u"left"_s, u"*right"_s, {800, 0, 700, 24}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.description);
        Session session({.screen = {1500, 900}});
        const auto add = [&](const QString& name, const QString& geometry, const QString& output) {
            session.display().run(u"xrandr"_s, {u"--setmonitor"_s, name, geometry, output});
        };
        add(given.left, u"800/200x900/220+0+0"_s, u"screen"_s);
        add(given.right, u"700/180x900/220+800+0"_s, u"none"_s);
        session.launch();
        ASSERT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
        EXPECT_EQ(session.bar()->geometry, given.bar);
    }
}

} // namespace
