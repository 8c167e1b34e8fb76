#include "viewkit/Symbols.h"

#include "viewkit/SymbolTable.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(Symbols, EveryNameOfTheTableDrawsSomethingAndNoOther) {
    QFile file(u":/symbols/symbols.tsv"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const SymbolTable table = parseSymbolTable(file.readAll());
    EXPECT_GE(table.size(), 85);
    for (const QString& name : table.keys()) {
        const QImage opacity =
            Symbols::pixmap(name, 32, 1, Qt::red).toImage().convertToFormat(QImage::Format_Alpha8);
        const auto clear = std::count(opacity.bits(), opacity.bits() + 32 * 32, 0);
        EXPECT_TRUE(clear > 51 && clear < 973) << name.toStdString() << " of 1024: " << clear;
    }
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
