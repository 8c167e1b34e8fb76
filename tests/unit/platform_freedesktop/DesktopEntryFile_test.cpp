// Reading one desktop entry: what makes it an application, its name in the user's language, and
// for whom it is shown.

#include "platform/freedesktop/DesktopEntryFile.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

std::optional<DesktopEntryFile> parse(const std::string& text, const char* locale = "C") {
    return DesktopEntryFile::parse(text, localizedKeyLanguages({locale}));
}

TEST(DesktopEntryFile, NeedsTypeAndName) {
    const std::pair<const char*, bool> cases[] = {
        {"# comment\n\n[Desktop Entry]\r\n Type = Application \r\nName\t= A\r\n", true},
        {"[Desktop Entry]\nType=Application\nName=A", true},
        {"[Desktop Entry]\nType=Link\nName=A\n", false},
        {"[Desktop Entry]\nName=A\n", false},
        {"[Desktop Entry]\nType=Application\nName= \\s\n", false},
        {"[Other]\nType=Application\nName=A\n", false},
        {"[Desktop Entry]\nType=Application\n[Desktop Action new]\nName=A\n", false},
        {"\x7f[=]\n[\n]==\n", false},
        {"", false},
    };
    for (const auto& [text, isApplication] : cases)
        EXPECT_EQ(parse(text).has_value(), isApplication) << text;
}

TEST(DesktopEntryFile, NameFollowsTheLanguage) {
    const std::string text =
        "[Desktop Entry]\nType=Application\nName[sr@latin]=sr latin\n"
        "Name[ja]=メモ\nName[de]=deutsch\nName=plain\nName[de_AT]=austrian\n"
        "Name[sr]=sr\nName[sr_RS]=sr RS\nName[pt_BR]=\nName[ko]=a\\sb\\\\c\\td\\\n"
        "Icon=edit\nName[de_CH@x]=swiss x\n";
    const std::pair<const char*, QString> cases[] = {
        {"C", u"plain"_s},
        {"ja_JP.UTF-8", u"メモ"_s},
        {"de_DE.UTF-8", u"deutsch"_s},
        {"de_AT", u"austrian"_s},
        {"de_CH@x", u"swiss x"_s},
        {"sr_RS.UTF-8@latin", u"sr RS"_s}, // the country comes before the modifier
        {"sr_ME@latin", u"sr latin"_s},
        {"pt_BR", u"plain"_s}, // an empty name is none
        {"ko_KR", u"a b\\c\td\\"_s},
    };
    for (const auto& [locale, name] : cases)
        EXPECT_EQ(parse(text, locale)->name, name) << locale;
    EXPECT_EQ(parse(text)->icon, u"edit"_s);
    EXPECT_THAT(
        localizedKeyLanguages({"de_AT.UTF-8@euro", "fr", "C", ""}),
        testing::ElementsAre("de_AT@euro", "de_AT", "de@euro", "de", "fr"));
    const auto entry = DesktopEntryFile::parse(
        "[Desktop Entry]\nType=Application\nName[fr]=f\nName[es]=e\nName=n\n", {"de", "es", "fr"});
    EXPECT_EQ(entry->name, u"e"_s);
}

TEST(DesktopEntryFile, ShownInTheNamedDesktops) {
    const std::pair<const char*, bool> cases[] = {
        {"", true},
        {"OnlyShowIn=KDE;GNOME;", true},
        {"OnlyShowIn=KDE", false},
        {"OnlyShowIn=", false},
        {"NotShowIn=ubuntu;", false},
        {"OnlyShowIn=ubuntu;\nNotShowIn=GNOME;", true},
        {"OnlyShowIn=GNOME;\nNotShowIn=ubuntu;", false},
    };
    for (const auto& [line, shown] : cases) {
        const auto entry = parse(std::string("[Desktop Entry]\nType=Application\nName=A\n") + line);
        EXPECT_EQ(entry->isShownIn({u"ubuntu"_s, u"GNOME"_s}), shown) << line;
    }
}

} // namespace
