#include "viewkit/WindowTheme.h"

#include "viewkit/Theme.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>
#include <gtest/gtest.h>

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

TEST(WindowTheme, MenusFollowTheSchemeAlsoWhenNoWindowIsThere) {
    { WindowTheme::follow(*std::make_unique<QWidget>()); }
    WindowTheme::setColorScheme(ColorScheme::dark);
    EXPECT_TRUE(Theme::isDark(QApplication::palette()));
    WindowTheme::setColorScheme(ColorScheme::light);
    EXPECT_FALSE(Theme::isDark(QApplication::palette()));
}

} // namespace
} // namespace velmora
