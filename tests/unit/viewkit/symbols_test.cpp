#include "viewkit/Symbols.h"

#include "viewkit/SymbolTable.h"

#include <QFile>
#include <QImage>
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

} // namespace
} // namespace velmora
