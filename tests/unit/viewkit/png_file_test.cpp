#include "viewkit/PngFile.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(PngFile, ReadsWhatQtWrote) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"ä.png"_s);
    QImage written(3, 2, QImage::Format_ARGB32);
    written.fill(Qt::transparent);
    written.setPixelColor(0, 0, QColor(10, 20, 30));
    written.setPixelColor(2, 1, QColor(200, 100, 50, 128));
    ASSERT_TRUE(written.save(file));
    EXPECT_EQ(readPng(file), written);

    QImage grey(2, 2, QImage::Format_Grayscale8);
    grey.fill(77);
    ASSERT_TRUE(grey.save(file));
    EXPECT_EQ(readPng(file).pixelColor(1, 1), QColor(77, 77, 77));
}

TEST(PngFile, IsNullWithoutAWholePicture) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.png"_s);
    EXPECT_TRUE(readPng(file).isNull());
    ASSERT_TRUE(QImage(64, 64, QImage::Format_RGB32).save(file));
    QFile cut(file);
    ASSERT_TRUE(cut.resize(cut.size() / 2));
    EXPECT_TRUE(readPng(file).isNull());
}

} // namespace
} // namespace velmora
