#pragma once

// Ownership of what GLib hands out. For the source files of this folder only.

#include <QString>
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <memory>

namespace velmora {

/// Gives a GLib object, text or list back when it goes.
struct GioDelete {
    void operator()(GDesktopAppInfo* object) const { g_object_unref(object); }
    void operator()(GAppInfo* object) const { g_object_unref(object); }
    void operator()(GAsyncResult* object) const { g_object_unref(object); }
    void operator()(GDBusConnection* object) const { g_object_unref(object); }
    void operator()(GFile* object) const { g_object_unref(object); }
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
    void operator()(gchar* text) const { g_free(text); }
    void operator()(gchar** texts) const { g_strfreev(texts); }
};

template<typename T>
using GioPointer = std::unique_ptr<T, GioDelete>;

/// Receives the error of one GLib call: pass out() as its last argument.
class GioError {
public:
    ~GioError() { g_clear_error(&error_); }
    GError** out() { return &error_; }
    QString message() const { return error_ ? QString::fromUtf8(error_->message) : QString(); }
    bool isConnectionClosed() const {
        return g_error_matches(error_, G_IO_ERROR, G_IO_ERROR_CLOSED);
    }

private:
    GError* error_ = nullptr;
};

} // namespace velmora
