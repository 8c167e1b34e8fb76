// Pictures of applications, of whatever a desktop entry names as one.

#include "settings/applications/AppIcons.h"

#include "settings/applications/AppInfo.h"
#include "support/TestDisplay.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

QSize loadedSize(const QString& file) {
    AppIcons icons;
    const AppInfo app(u"App"_s, u"app"_s, file, file);
    bool isLoaded = false;
    QObject::connect(&icons, &AppIcons::loaded, &icons, [&] { isLoaded = true; });
    icons.load(app, 2);
    EXPECT_TRUE(waitFor([&] { return isLoaded; })) << qPrintable(file);
    return icons.find(app, 2).value().deviceIndependentSize().toSize();
}

} // namespace

TEST(AppIcons, AreReadFromRegularFilesOfSensibleSize) {
    const QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
    for (const auto& [name, width] :
         {std::pair("small.png", 16), {"wide.png", 400}, {"huge.png", 1025}}) {
        QImage image(width, qMin(width, 200), QImage::Format_ARGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(path(name), "PNG"));
    }
    QFile drawing(path("drawing"));
    ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
    drawing.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
        <rect width="8" height="8" fill="red"/></svg>)");
    drawing.close();
    ASSERT_EQ(::mkfifo(path("pipe.png").toUtf8().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path("device.png")));
    const std::pair<const char*, QSize> cases[] = {
        // in points
        {"pipe.png", {0, 0}},    {"device.png", {0, 0}},  {".", {0, 0}},
        {"missing.png", {0, 0}}, {"huge.png", {0, 0}},    {"drawing", {32, 32}},
        {"wide.png", {32, 16}},  {"small.png", {16, 16}},
    };
    for (const auto& [name, size] : cases)
        EXPECT_EQ(loadedSize(path(name)), size) << name;
}
