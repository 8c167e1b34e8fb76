#include "viewkit/Symbols.h"

#include "viewkit/SymbolTable.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Share of the picture that is not fully transparent.
double coverage(const QImage& image) {
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            drawn += qAlpha(image.pixel(x, y)) > 0;
    }
    return double(drawn) / (image.width() * image.height());
}

TEST(Symbols, EveryNameOfTheTableDrawsSomethingOfItsOwn) {
    QFile file(u":/symbols/symbols.tsv"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const SymbolTable table = parseSymbolTable(file.readAll());
    EXPECT_GE(table.size(), 85);
    for (const QString& name : table.keys()) {
        const double share = coverage(Symbols::pixmap(name, 32, 1, Qt::red).toImage());
        EXPECT_GT(share, 0.05) << name.toStdString();
        EXPECT_LT(share, 0.95) << name.toStdString();
    }
}

TEST(Symbols, UnknownNamesDrawNothing) {
    for (const QString& name : {u"lassoaura"_s, u"Safari"_s, QString()}) {
        EXPECT_FALSE(Symbols::contains(name));
        EXPECT_TRUE(Symbols::pixmap(name, 14, 1, Qt::white).isNull());
    }
}

TEST(Symbols, PaintsOnWholeDevicePixels) {
    // At 1.5 pixels a point, x = 1 lies between two pixels.
    QImage canvas(60, 60, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(1.5);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    Symbols::paint(painter, u"globe"_s, {1, 1, 14, 14}, Qt::white);
    painter.end();
    QImage expected = Symbols::pixmap(u"globe"_s, 14, 1.5, Qt::white).toImage();
    QImage painted = canvas.copy(2, 2, 21, 21);
    expected.setDevicePixelRatio(1);
    painted.setDevicePixelRatio(1);
    EXPECT_EQ(painted, expected.convertToFormat(painted.format()));
}

} // namespace
} // namespace velmora
