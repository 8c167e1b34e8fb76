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
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark, ColorScheme::light}) {
        WindowTheme::setColorScheme(scheme);
        QCoreApplication::processEvents();
        EXPECT_EQ(menu.styleSheet() == dark, scheme == ColorScheme::dark);
    }
    menu.close();
    menu.popUp({});
    EXPECT_EQ(asked, 1);
}

} // namespace
} // namespace velmora
