#pragma once

#include "foundation/IniText.h"
#include "foundation/RegularFile.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <optional>

namespace velmora {

/// The user's stored settings, values by key; the only writer of their file, in a form that
/// QSettings reads. Each write is on the disk before it returns, and a crash or a failure at any
/// moment leaves the old file or the new one. What could not be written is read back all the same
/// and written with the next write, or after a pause that grows. What another hand changes in the
/// file stays, but for the keys that are written. Two files are never replaced: one that could not
/// be read at the start, and one that does not parse, unless a copy of it was made beside it
/// ("<file>.unreadable", the next ones numbered). The log tells of each. Main thread only.
class UserDefaults : public QObject {
    Q_OBJECT
public:
    /// The process-wide store, "velmora/velmora.conf" in the user's configuration folder.
    static UserDefaults& standard();

    /// A store of its own in `file`. `pause` is the first one before another try to write.
    explicit UserDefaults(
        const QString& file, std::chrono::milliseconds pause = std::chrono::seconds(2));

    /// The bytes under `key`; absent when there are none.
    std::optional<QByteArray> data(const QString& key) const;
    void setData(const QString& key, const QByteArray& value);

    /// The Boolean under `key`; false when there is none.
    bool boolean(const QString& key) const;
    void setBoolean(const QString& key, bool value);

    /// Takes in what another hand has changed in the file.
    void refresh();
    /// Finds out whether the file could be written, for failure(). Leaves everything as it is.
    void check();

    /// Why the present values are not on the disk, or the next would not be, in the user's
    /// language; empty when nothing is known to be wrong.
    QString failure() const { return failure_; }

Q_SIGNALS:
    void failureChanged();

private:
    void write(const QString& key, const QByteArray& written);
    void save();
    void takeIn();
    void keepAside();
    void setFailure(const QString& reason);

    const QString file_;
    IniText text_;                    ///< the file as last read or written
    std::optional<FileState> state_;  ///< of that file; nothing while there was none
    std::optional<FileError> unread_; ///< why what is in the file since the start is not known
    QByteArray unparsed_;             ///< the file, while it does not parse and was not kept aside
    QMap<QByteArray, QByteArray> unsaved_; ///< values in their written form
    QString failure_;
    const std::chrono::milliseconds firstPause_;
    std::chrono::milliseconds pause_;
    QTimer retry_;
};

} // namespace velmora
