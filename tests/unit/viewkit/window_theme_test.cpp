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
    QFont font;
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

} // namespace
} // namespace velmora
