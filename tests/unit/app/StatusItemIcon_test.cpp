#include "app/StatusItemIcon.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(StatusItemIcon, IsTheFilesPictureOrAnother) {
    const QTemporaryDir folder;
    const QString square = folder.path() + u"/square.png"_s;
    QImage red(72, 72, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(square));
    const QString broken = folder.path() + u"/broken.png"_s;
    ASSERT_TRUE(QFile::copy(square, broken) && QFile::resize(broken, 60));
    for (const auto& path :
         {std::optional(square), std::optional(broken), std::optional<QString>()}) {
        SCOPED_TRACE(path.value_or(u"none"_s).toStdString());
        const QImage image = statusItemIcon(path).pixmap(36, 36).toImage();
        EXPECT_EQ(image.size(), QSize(36, 36));
        EXPECT_EQ(image.pixelColor(18, 1) == QColor(Qt::red), path == square);
        EXPECT_EQ(image.pixelColor(18, 1).alpha(), 255);
    }
}

} // namespace
} // namespace velmora
