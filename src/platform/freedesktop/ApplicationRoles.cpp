#include "platform/freedesktop/ApplicationRoles.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace velmora {

QList<QLatin1StringView> applicationRole(const QString& identifier) {
    using Role = QList<QLatin1StringView>;
    static const Role videoPlayer{"video/mp4"_L1};
    static const Role musicPlayer{"audio/mpeg"_L1};
    static const Role writer{"application/vnd.oasis.opendocument.text"_L1, "libreoffice-writer"_L1};
    static const Role spreadsheet{
        "application/vnd.oasis.opendocument.spreadsheet"_L1, "libreoffice-calc"_L1};
    static const Role presentation{
        "application/vnd.oasis.opendocument.presentation"_L1, "libreoffice-impress"_L1};
    static const QHash<QLatin1StringView, Role> roles{
        {"com.apple.safari"_L1, {"x-scheme-handler/https"_L1, "x-scheme-handler/http"_L1}},
        {"com.apple.finder"_L1, {"inode/directory"_L1}},
        {"com.apple.mail"_L1, {"x-scheme-handler/mailto"_L1}},
        {"com.apple.ical"_L1, {"text/calendar"_L1}},
        {"com.apple.addressbook"_L1, {"text/vcard"_L1}},
        {"com.apple.terminal"_L1,
         {"org.gnome.Terminal"_L1, "org.gnome.Console"_L1, "org.kde.konsole"_L1,
          "xfce4-terminal"_L1, "mate-terminal"_L1, "lxterminal"_L1, "qterminal"_L1, "terminator"_L1,
          "com.gexperts.Tilix"_L1, "kitty"_L1, "Alacritty"_L1, "foot"_L1, "debian-uxterm"_L1,
          "debian-xterm"_L1, "xterm"_L1}},
        {"com.apple.music"_L1, musicPlayer},
        {"com.apple.itunes"_L1, musicPlayer},
        {"com.apple.tv"_L1, videoPlayer},
        {"com.apple.quicktimeplayerx"_L1, videoPlayer},
        {"com.apple.photos"_L1, {"image/jpeg"_L1}},
        {"com.apple.preview"_L1, {"application/pdf"_L1}},
        {"com.apple.textedit"_L1, {"text/plain"_L1}},
        {"com.apple.notes"_L1,
         {"org.gnome.Notes"_L1, "org.kde.knotes"_L1, "xfce4-notes"_L1, "text/plain"_L1}},
        {"com.apple.maps"_L1,
         {"x-scheme-handler/geo"_L1, "org.gnome.Maps"_L1, "org.kde.marble"_L1}},
        {"com.apple.calculator"_L1,
         {"org.gnome.Calculator"_L1, "org.kde.kcalc"_L1, "galculator"_L1, "mate-calc"_L1}},
        {"com.apple.systempreferences"_L1,
         {"org.gnome.Settings"_L1, "gnome-control-center"_L1, "systemsettings"_L1,
          "xfce-settings-manager"_L1, "matecc"_L1}},
        {"com.apple.activitymonitor"_L1,
         {"org.gnome.SystemMonitor"_L1, "gnome-system-monitor"_L1,
          "org.kde.plasma-systemmonitor"_L1, "xfce4-taskmanager"_L1, "mate-system-monitor"_L1}},
        {"com.apple.appstore"_L1, {"org.gnome.Software"_L1, "org.kde.discover"_L1}},
        {"com.apple.iwork.pages"_L1, writer},
        {"com.apple.iwork.numbers"_L1, spreadsheet},
        {"com.apple.iwork.keynote"_L1, presentation},
        {"com.microsoft.word"_L1, writer},
        {"com.microsoft.excel"_L1, spreadsheet},
        {"com.microsoft.powerpoint"_L1, presentation},
        {"com.microsoft.outlook"_L1, {"x-scheme-handler/mailto"_L1}},
        {"com.microsoft.vscode"_L1,
         {"code"_L1, "com.visualstudio.code"_L1, "codium"_L1, "com.vscodium.codium"_L1}},
        {"com.google.chrome"_L1,
         {"google-chrome"_L1, "chromium"_L1, "org.chromium.Chromium"_L1, "chromium-browser"_L1}},
        {"org.mozilla.firefox"_L1, {"firefox"_L1, "firefox-esr"_L1}},
        {"org.mozilla.thunderbird"_L1, {"thunderbird"_L1}},
        {"com.spotify.client"_L1, {"spotify"_L1, "com.spotify.Client"_L1}},
        {"com.tinyspeck.slackmacgap"_L1, {"slack"_L1, "com.slack.Slack"_L1}},
        {"com.hnc.discord"_L1, {"discord"_L1, "com.discordapp.Discord"_L1}},
        {"us.zoom.xos"_L1, {"Zoom"_L1, "us.zoom.Zoom"_L1}},
    };
    // Case does not tell identifiers apart. A text outside Latin-1 becomes one with question marks,
    // which no identifier has.
    const QByteArray key = identifier.toLower().toLatin1();
    return roles.value(QLatin1StringView(key));
}

} // namespace velmora
