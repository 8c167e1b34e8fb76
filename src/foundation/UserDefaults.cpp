#include "foundation/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The user's configuration folder. A relative $XDG_CONFIG_HOME is to be ignored, which
/// QStandardPaths does not do.
QString configurationFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.config"_s;
}

/// Makes a missing file, empty, and its folder for the user's eyes only: a shell command may hold
/// a secret. QSettings by itself would make both readable to everyone; it keeps a mode once set.
void createPrivately(const QString& file) {
    if (QFileInfo::exists(file))
        return;
    const QString folder = QFileInfo(file).absolutePath();
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(QFileInfo(folder).absolutePath());
        ::mkdir(QFile::encodeName(folder).constData(), 0700);
    }
    const int descriptor =
        ::open(QFile::encodeName(file).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor >= 0)
        ::close(descriptor);
}

/// QSettings waits 30 seconds for a lock whose holder it cannot tell, such as the empty one of a
/// process killed between making it and filling it. Writing takes milliseconds, so a lock of some
/// age is abandoned.
void clearAbandonedLock(const QString& file) {
    const QString path = file + u".lock"_s;
    if (!QFileInfo::exists(path))
        return;
    QLockFile lock(path);
    lock.setStaleLockTime(100);
    lock.tryLock(200);
}

/// Copies the file beside itself; earlier copies stay.
bool keepAside(const QString& file) {
    QString copy = file + u".unreadable"_s;
    for (int number = 2; QFileInfo::exists(copy); ++number)
        copy = file + u".unreadable-%1"_s.arg(number);
    return QFile::copy(file, copy);
}

} // namespace

UserDefaults& UserDefaults::standard() {
    static auto* instance = new UserDefaults(configurationFolder() + u"/velmora/velmora.conf"_s);
    return *instance;
}

UserDefaults::UserDefaults(const QString& file)
    : file_(file), settings_(file, QSettings::IniFormat) {
    settings_.setFallbacksEnabled(false);
}

std::optional<QByteArray> UserDefaults::data(const QString& key) const {
    const QVariant stored = value(key);
    if (!stored.isValid())
        return std::nullopt;
    if (stored.typeId() == QMetaType::QByteArray)
        return stored.toByteArray();
    // A value cut short or written by hand reads as text, or as a list where it has commas.
    return stored.toStringList().join(u',').toUtf8();
}

void UserDefaults::setData(const QString& key, const QByteArray& value) {
    write(key, value);
}

bool UserDefaults::boolean(const QString& key) const {
    return value(key).toBool();
}

void UserDefaults::setBoolean(const QString& key, bool value) {
    write(key, value);
}

QVariant UserDefaults::value(const QString& key) const {
    return pending_.contains(key) ? pending_.value(key) : settings_.value(key);
}

void UserDefaults::write(const QString& key, const QVariant& value) {
    pending_.insert(key, value);
    if (!prepareFile())
        return;
    for (auto entry = pending_.cbegin(); entry != pending_.cend(); ++entry)
        settings_.setValue(entry.key(), entry.value());
    pending_.clear();
    settings_.sync();
}

/// Whether what the file holds may be replaced now.
bool UserDefaults::prepareFile() {
    createPrivately(file_);
    clearAbandonedLock(file_);
    settings_.sync();
    // Sections are parsed when first asked for; only then is it known whether they are well-formed.
    settings_.allKeys();
    if (settings_.status() == QSettings::FormatError && !keptAside_)
        keptAside_ = keepAside(file_);
    return settings_.status() != QSettings::FormatError || keptAside_;
}

} // namespace velmora
