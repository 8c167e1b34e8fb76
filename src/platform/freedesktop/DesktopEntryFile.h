#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

namespace velmora {

/// What a list of applications needs of a desktop entry.
struct DesktopEntryFile {
    QString name;
    QString icon;
    QString tryExec;
    QStringList onlyShowIn;
    QStringList notShowIn;
    bool hasOnlyShowIn = false;
    bool hidden = false; ///< Hidden or NoDisplay

    /// Reads the "[Desktop Entry]" group of `text` by the Desktop Entry Specification. `languages`
    /// are tried in their order for the name, the unlocalized one comes last. Nothing when the
    /// entry is no application or has no name.
    static std::optional<DesktopEntryFile>
    parse(std::string_view text, const QByteArrayList& languages);

    /// Whether the entry is for a session of these desktops (XDG_CURRENT_DESKTOP, split).
    bool isShownIn(const QStringList& desktops) const;
};

/// The languages to look for under `locales` ("lang_COUNTRY.ENCODING@MODIFIER", best first):
/// each from its most to its least special form.
QByteArrayList localizedKeyLanguages(const QByteArrayList& locales);

} // namespace velmora
