#include "viewkit/PopupMenu.h"
#include "viewkit/WindowTheme.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(WindowTheme, TheFirstWindowHasTheTextOfTheOthers) {
    QFont font = QApplication::font();
    font.setPixelSize(9);
    QApplication::setFont(font);
    for (int window = 0; window < 2; ++window) {
        QWidget view;
        WindowTheme::follow(view);
        auto* label = new QLabel;
        (new QVBoxLayout(&view))->addWidget(label);
        view.show();
        EXPECT_EQ(QFontInfo(label->font()).pixelSize(), WindowTheme::fontSize) << window;
    }
}

TEST(WindowTheme, MenusAskForTheSchemeOnceAndFollowIt) {
    int asked = 0;
    WindowTheme::setSchemeSource([&] {
        ++asked;
        WindowTheme::setColorScheme(ColorScheme::dark);
    });
    PopupMenu menu;
    menu.addItem(u"Item"_s, {}, [] {});
    EXPECT_EQ(asked, 0);
    menu.popUp({});
    const QString dark = menu.styleSheet();
    WindowTheme::setColorScheme(ColorScheme::light);
    QCoreApplication::processEvents();
    const QString light = menu.styleSheet();
    EXPECT_NE(light, dark);
    menu.close();
    WindowTheme::setColorScheme(ColorScheme::dark);
    menu.popUp({});
    EXPECT_EQ(menu.styleSheet(), dark);
    EXPECT_EQ(asked, 1);
    WindowTheme::setColorScheme(ColorScheme::light);
}

} // namespace
} // namespace velmora
