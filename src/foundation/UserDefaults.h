#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QVariantMap>
#include <optional>

namespace velmora {

/// The user's stored settings, values by key. Each write reaches the disk before it returns and
/// replaces the old file whole, so that a crash leaves the old values or the new ones. A write that
/// fails (full disk, read-only folder, unreadable file) is silent: what was stored stays, the value
/// read back is the new one, and the next write tries again. A file that does not parse is copied
/// to "<file>.unreadable" before it is replaced. Main thread only.
class UserDefaults {
public:
    /// The process-wide store, "velmora/velmora.conf" in the user's configuration folder.
    static UserDefaults& standard();

    /// A store of its own in `file`.
    explicit UserDefaults(const QString& file);

    /// The bytes under `key`; absent when there are none.
    std::optional<QByteArray> data(const QString& key) const;
    void setData(const QString& key, const QByteArray& value);

    /// The Boolean under `key`; false when there is none.
    bool boolean(const QString& key) const;
    void setBoolean(const QString& key, bool value);

private:
    QVariant value(const QString& key) const;
    void write(const QString& key, const QVariant& value);
    bool prepareFile();

    const QString file_;
    QSettings settings_;
    /// Values that may not be written yet because the file's own bytes are not safe.
    QVariantMap pending_;
    bool keptAside_ = false;
};

} // namespace velmora
