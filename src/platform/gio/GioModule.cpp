#include "platform/gio/GioModule.h"

#include "platform/gio/DesktopLaunch.h"
#include "platform/gio/GioPointer.h"

#include <QFile>

namespace velmora {
namespace {

/// Where `entry`, which may be null, is stored.
QString location(GDesktopAppInfo* entry) {
    return QFile::decodeName(entry ? g_desktop_app_info_get_filename(entry) : nullptr);
}

QString entryLocation(const QByteArray& id) {
    const GioPointer<GDesktopAppInfo> entry(g_desktop_app_info_new(id.constData()));
    return location(entry.get());
}

QString defaultHandlerLocation(const QByteArray& type) {
    const GioPointer<GAppInfo> handler(g_app_info_get_default_for_type(type.constData(), FALSE));
    return location(handler ? G_DESKTOP_APP_INFO(handler.get()) : nullptr);
}

void observeColourScheme(std::function<void(const QByteArray& scheme)> changed) {
    static constexpr auto key = "color-scheme";
    GSettingsSchemaSource* const source = g_settings_schema_source_get_default();
    const GioPointer<GSettingsSchema> schema(
        source ? g_settings_schema_source_lookup(source, "org.gnome.desktop.interface", true)
               : nullptr);
    if (!schema || !g_settings_schema_has_key(schema.get(), key))
        return;
    using Changed = std::function<void(const QByteArray& scheme)>;
    const auto tell = +[](GSettings* settings, const char*, gpointer handler) {
        const GioPointer<gchar> scheme(g_settings_get_string(settings, key));
        (*static_cast<Changed*>(handler))(scheme.get());
    };
    // Neither is ever destroyed: the setting may change at any time.
    auto* const handlerForGood = new Changed(std::move(changed));
    auto* const settingsForGood = g_settings_new_full(schema.get(), nullptr, nullptr);
    g_signal_connect(settingsForGood, "changed::color-scheme", G_CALLBACK(tell), handlerForGood);
    tell(settingsForGood, key, handlerForGood);
}

} // namespace
} // namespace velmora

extern "C" [[gnu::visibility("default")]] const velmora::GioModule& velmoraGioModule() {
    using namespace velmora;
    static constexpr GioModule module{VELMORA_VERSION,        entryLocation,
                                      defaultHandlerLocation, DesktopLaunch::openApplication,
                                      DesktopLaunch::openUrl, observeColourScheme};
    return module;
}
