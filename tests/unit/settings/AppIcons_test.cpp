#include "settings/AppIcons.h"

#include "settings/AppInfo.h"
#include "viewkit/WindowTheme.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(AppIcons, ShowsDrawingsMadeOfTextAndNothingForEmptyOnes) {
    QWidget window;
    WindowTheme::follow(window);
    const struct {
        QByteArray content;
        bool isShown;
    } cases[] = {
        // A text whose size only its part gives, as drawing programs write it.
        {"<text x='4' y='40'><tspan style='font-size:40px'>X</tspan></text>", true},
        {"<rect width='48' height='48' fill='none'/>", false},
    };
    QTemporaryDir folder;
    for (const auto& [content, isShown] : cases) {
        QFile file(folder.filePath(isShown ? u"text.svg"_s : u"empty.svg"_s));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' width='48' height='48'>" + content);
        file.write("</svg>");
        file.close();
        const AppInfo app(u"App"_s, u"org.app"_s, file.fileName(), file.fileName());
        AppIcons icons;
        icons.load(app, 1.0);
        ASSERT_TRUE(icons.find(app, 1.0).has_value());
        EXPECT_EQ(!icons.find(app, 1.0)->isNull(), isShown) << content.constData();
    }
}

} // namespace
} // namespace velmora
