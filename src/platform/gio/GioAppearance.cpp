#include "platform/gio/GioAppearance.h"

#include "platform/freedesktop/SessionBus.h"

#include <gio/gio.h>
#include <optional>

namespace velmora {
namespace {

constexpr auto portalName = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto portalInterface = "org.freedesktop.portal.Settings";
constexpr auto portalNamespace = "org.freedesktop.appearance";
constexpr auto portalKey = "color-scheme";
constexpr unsigned portalPrefersDark = 1;
constexpr unsigned portalPrefersLight = 2;

constexpr auto gnomeSchema = "org.gnome.desktop.interface";
constexpr auto gnomeKey = "color-scheme";

/// The number inside `value`, through any nesting of variants.
std::optional<unsigned> unwrapped(GVariant* value) {
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_UINT32))
        return g_variant_get_uint32(value);
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE_VARIANT))
        return std::nullopt;
    GVariant* inner = g_variant_get_variant(value);
    const auto number = unwrapped(inner);
    g_variant_unref(inner);
    return number;
}

/// What the answers come from. Handlers run on the main thread, from GLib's main context.
struct Sources {
    Appearance::Handler handler;
    GSettings* gnome = nullptr;
    bool portalAnswered = false;

    void readGnome() {
        if (portalAnswered)
            return;
        char* value = g_settings_get_string(gnome, gnomeKey);
        tell(g_strcmp0(value, "prefer-dark") == 0, g_strcmp0(value, "prefer-light") == 0);
        g_free(value);
    }

    void portalSays(unsigned preference) {
        portalAnswered = true;
        tell(preference == portalPrefersDark, preference == portalPrefersLight);
    }

    void tell(bool prefersDark, bool prefersLight) const {
        handler(prefersDark || prefersLight ? std::optional(prefersDark) : std::nullopt);
    }

    void openGnome() {
        GSettingsSchemaSource* source = g_settings_schema_source_get_default();
        GSettingsSchema* schema =
            source ? g_settings_schema_source_lookup(source, gnomeSchema, true) : nullptr;
        if (!schema)
            return;
        if (g_settings_schema_has_key(schema, gnomeKey)) {
            gnome = g_settings_new_full(schema, nullptr, nullptr);
            const GCallback changed = G_CALLBACK(+[](GSettings*, const char*, gpointer self) {
                static_cast<Sources*>(self)->readGnome();
            });
            g_signal_connect(gnome, "changed::color-scheme", changed, this);
            readGnome();
        }
        g_settings_schema_unref(schema);
    }

    void openPortal() {
        g_bus_get(
            G_BUS_TYPE_SESSION, nullptr,
            [](GObject*, GAsyncResult* result, gpointer self) {
                if (GDBusConnection* connection = g_bus_get_finish(result, nullptr))
                    static_cast<Sources*>(self)->askPortal(connection);
            },
            this);
    }

    /// Keeps `bus` for good.
    void askPortal(GDBusConnection* bus) {
        // Losing the bus must not end the program.
        g_dbus_connection_set_exit_on_close(bus, false);
        g_dbus_connection_signal_subscribe(
            bus, portalName, portalInterface, "SettingChanged", portalPath, portalNamespace,
            G_DBUS_SIGNAL_FLAGS_NONE,
            [](GDBusConnection*, const char*, const char*, const char*, const char*,
               GVariant* parameters, gpointer self) {
                const char* key = nullptr;
                GVariant* value = nullptr;
                g_variant_get(parameters, "(&s&sv)", nullptr, &key, &value);
                const auto preference = unwrapped(value);
                if (g_strcmp0(key, portalKey) == 0 && preference)
                    static_cast<Sources*>(self)->portalSays(*preference);
                g_variant_unref(value);
            },
            this, nullptr);
        g_dbus_connection_call(
            bus, portalName, portalPath, portalInterface, "Read",
            g_variant_new("(ss)", portalNamespace, portalKey), G_VARIANT_TYPE("(v)"),
            G_DBUS_CALL_FLAGS_NONE, -1, nullptr,
            [](GObject* source, GAsyncResult* result, gpointer self) {
                GVariant* reply =
                    g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, nullptr);
                if (!reply)
                    return;
                GVariant* value = g_variant_get_child_value(reply, 0);
                if (const auto preference = unwrapped(value))
                    static_cast<Sources*>(self)->portalSays(*preference);
                g_variant_unref(value);
                g_variant_unref(reply);
            },
            this);
    }
};

} // namespace

void GioAppearance::observe(Handler handler) {
    // Never destroyed, like the service itself: they may speak at any time.
    auto* const sources = new Sources{.handler = std::move(handler)};
    sources->openGnome();
    if (hasSessionBus())
        sources->openPortal();
}

} // namespace velmora
