// The program in other languages than English, and painted from right to left.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

TEST(Languages, AreTheSessions) {
    struct Case {
        QString language, title; ///< of the first window, the terms'
    };
    const Case cases[] = {
        {u"de_AT.UTF-8"_s, u"Nutzungsbedingungen"_s},
        {u"ja_JP.UTF-8"_s, u"利用規約"_s},
        {u"zh_CN.UTF-8"_s, u"使用条款"_s},
        {u"pl_PL.UTF-8"_s, u"Terms of Service"_s}, // there is no Polish catalogue
    };
    for (const auto& [language, title] : cases) {
        Session session({.agreed = false, .environment = {u"LANG="_s + language, u"LANGUAGE"_s}});
        session.launch();
        EXPECT_TRUE(waitFor([&] { return session.activeTitle() == title; }))
            << language.toStdString() << ": " << session.activeTitle().toStdString()
            << (session.program().isRunning() ? ", running" : ", ended") << ", windows: "
            << session.client().property(session.client().root(), "_NET_CLIENT_LIST").size()
            << ", focus: " << inputFocus(session.client()) << '\n'
            << session.log().join(u'\n').toStdString();
    }
}

TEST(Languages, FromRightToLeftMirrorTheSettingsAndNotTheBarsSides) {
    QImage bar;
    for (const QStringList& arguments : {QStringList(), QStringList{u"-reverse"_s}}) {
        Session session({.arguments = arguments});
        session.launch();
        EXPECT_TRUE(waitFor([&] { return session.isBarShown(); }));
        session.launchAnother()->waitForFinished();
        ASSERT_TRUE(session.waitForSettings());
        const QImage picture = screenshot(session.client(), session.bar()->geometry);
        if (!arguments.isEmpty()) {
            EXPECT_EQ(picture, bar);
        }
        bar = picture;
        // The first of the buttons below the list.
        const QRect window = area(session.client(), activeWindow(session.client()));
        constexpr int fromSide = 79, fromBottom = 50;
        const int x = arguments.isEmpty() ? window.left() + fromSide : window.right() - fromSide;
        session.driver().move(x, window.bottom() - fromBottom);
        session.driver().click();
        EXPECT_TRUE(waitFor([&] { return session.activeTitle() == u"New Button"_s; }))
            << session.activeTitle().toStdString();
    }
}

} // namespace
