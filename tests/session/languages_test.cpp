// The program in other languages than English, and painted from right to left.

#include "session/AccessibleTree.h"
#include "session/Session.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// A session whose settings window a screen reader reads.
class ReadSession : public Session {
public:
    explicit ReadSession(const QString& language, const QStringList& arguments = {})
        : Session(
              {.arguments = arguments,
               .hasBus = true,
               .environment = {
                   u"LANG="_s + language, u"LANGUAGE"_s,
                   QString::fromLatin1(AccessibleTree::accessibilitySetting)}}) {
        launch();
        launchAnother()->waitForFinished();
        EXPECT_TRUE(waitForSettings());
    }

    /// Waits until the texts are there, all of them in one window.
    void expectTexts(const QStringList& texts) {
        EXPECT_TRUE(waitFor([&] { return tree.names().contains(texts.last()); }));
        const QStringList names = tree.names();
        for (const QString& text : texts)
            EXPECT_TRUE(names.contains(text))
                << text.toStdString() << ": " << names.join(u" | "_s).toStdString();
    }

    AccessibleTree tree{busAddress()};
};

TEST(Languages, AreTheSessions) {
    struct Case {
        QString language;
        QStringList texts; ///< the bar's menu button, the tabs, a row of the list, buttons below it
    };
    const Case cases[] = {
        {u"de_AT.UTF-8"_s,
         {u"Velmora-Menü"_s, u"Knöpfe"_s, u"Maustasten"_s, u"Safari, Safari starten, Links"_s,
          u"Hinzufügen"_s, u"Neu starten"_s}},
        {u"ja_JP.UTF-8"_s,
         {u"Velmoraメニュー"_s, u"バーのボタン"_s, u"マウスボタン"_s, u"追加"_s, u"再起動"_s}},
        {u"zh_CN.UTF-8"_s,
         {u"Velmora 菜单"_s, u"快捷栏按钮"_s, u"鼠标按键"_s, u"添加"_s, u"重新启动"_s}},
        {u"pl_PL.UTF-8"_s, // a language that is not there
         {u"Velmora menu"_s, u"Bar Buttons"_s, u"Mouse Buttons"_s, u"Add"_s, u"Restart"_s}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.language.toStdString());
        ReadSession session(given.language);
        session.expectTexts(given.texts);
    }
}

TEST(Languages, FromRightToLeftMirrorTheSettingsAndNotTheBarsSides) {
    std::vector<QRect> places;
    for (const bool isReversed : {false, true}) {
        SCOPED_TRACE(isReversed ? "right to left" : "left to right");
        ReadSession session(
            u"en_GB.UTF-8"_s, isReversed ? QStringList{u"-reverse"_s} : QStringList{});
        session.expectTexts({u"Mouse Buttons"_s, u"Restart"_s});
        const auto expectInOrder = [&](const QString& one, const QString& other) {
            const QRect first = session.tree.placeOf(isReversed ? other : one);
            const QRect second = session.tree.placeOf(isReversed ? one : other);
            EXPECT_TRUE(!first.isEmpty() && first.right() < second.left()) << one.toStdString();
        };
        expectInOrder(u"Bar Buttons"_s, u"Mouse Buttons"_s);
        expectInOrder(u"Add"_s, u"Restart"_s);
        if (isReversed) {
            EXPECT_EQ(session.buttons(), places);
        }
        places = session.buttons();
        EXPECT_EQ(places.size(), 4u);
    }
}

} // namespace
