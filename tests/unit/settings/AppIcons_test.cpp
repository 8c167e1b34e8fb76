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

QSize loadedSize(AppIcons& icons, const QString& file, double ratio) {
    const AppInfo app(u"App"_s, u"app"_s, file, file);
    EXPECT_FALSE(icons.find(app, ratio));
    bool isLoaded = false;
    const auto connection =
        QObject::connect(&icons, &AppIcons::loaded, &icons, [&] { isLoaded = true; });
    icons.load(app, ratio);
    EXPECT_TRUE(icons.find(app, ratio).value().isNull()) << "read on this thread";
    EXPECT_TRUE(waitFor([&] { return isLoaded; })) << qPrintable(file);
    QObject::disconnect(connection);
    return icons.find(app, ratio).value().deviceIndependentSize().toSize();
}

} // namespace

TEST(AppIcons, AreReadFromRegularFilesOfSensibleSize) {
    const QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
    const auto draw = [&](const char* name, const QSize& size, const QColor& color) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(path(name), "PNG"));
    };
    const auto write = [&](const char* name, const QByteArray& bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    draw("small.png", {16, 16}, Qt::red);
    draw("wide.png", {400, 200}, Qt::red);
    draw("huge.png", {1025, 10}, Qt::red);
    draw("blank.png", {32, 32}, Qt::transparent);
    write("drawing", R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
        <rect width="8" height="8" fill="red"/></svg>)");
    write("text.png", "no picture");
    write("long.png", QByteArray(9 * 1024 * 1024, 'x'));
    ASSERT_EQ(::mkfifo(path("pipe.png").toUtf8().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path("device.png")));
    ASSERT_TRUE(QFile::link(path("pipe.png"), path("link.png")));
    const struct {
        const char* name;
        QSize size; ///< in points
    } cases[] = {
        {"pipe.png", {}},    {"device.png", {}},    {"link.png", {}},       {".", {}},
        {"missing.png", {}}, {"huge.png", {}},      {"blank.png", {}},      {"text.png", {}},
        {"long.png", {}},    {"drawing", {32, 32}}, {"wide.png", {32, 16}}, {"small.png", {16, 16}},
    };
    AppIcons icons;
    for (const auto& [name, size] : cases)
        for (const double ratio : {1.0, 2.0})
            EXPECT_EQ(loadedSize(icons, path(name), ratio), size.isValid() ? size : QSize(0, 0))
                << name;
    // What is no file of its own and no name of the theme is not looked for anywhere.
    const AppInfo relative(u"App"_s, u"app"_s, u"r"_s, u"../"_s + path("wide.png"));
    icons.load(relative, 1);
    EXPECT_TRUE(icons.find(relative, 1).value().isNull());
}
