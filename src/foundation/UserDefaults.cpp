#include "foundation/UserDefaults.h"

#include "foundation/Environment.h"
#include "foundation/Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

/// Bytes; a thousand buttons take a third of a million.
constexpr qint64 sizeLimit = 64 * 1024 * 1024;

constexpr std::chrono::milliseconds longestPause = 1min;

/// Makes the folder if it is missing, for the user's eyes only: a shell command may hold
/// a secret. Whether it was made; that it cannot be is found out by who writes into it.
bool makeFolder(const QString& folder) {
    if (QFileInfo::exists(folder))
        return false;
    QDir().mkpath(QFileInfo(folder).absolutePath());
    return ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0;
}

} // namespace

UserDefaults& UserDefaults::standard() {
    static auto* const instance = [] {
        auto* const made =
            new UserDefaults(Environment::configurationFolder() + u"/velmora/velmora.conf"_s);
        // The last chance of what could not be written so far.
        connect(qApp, &QCoreApplication::aboutToQuit, made, [made] {
            if (!made->unsaved_.isEmpty())
                made->save();
        });
        return made;
    }();
    return *instance;
}

UserDefaults::UserDefaults(const QString& file, std::chrono::milliseconds pause)
    : file_(file), firstPause_(pause), pause_(pause) {
    retry_.setSingleShot(true);
    connect(&retry_, &QTimer::timeout, this, [this] {
        pause_ = std::min(2 * pause_, longestPause);
        save();
    });
    try {
        RegularFile::removeAbandoned(file_);
        takeIn();
    } catch (const FileError& error) {
        unread_ = error;
        setFailure(error.reason);
    }
}

std::optional<QByteArray> UserDefaults::data(const QString& key) const {
    const auto unsaved = unsaved_.constFind(key.toLatin1());
    return unsaved == unsaved_.cend() ? text_.value(key.toLatin1()) : IniText::read(*unsaved);
}

void UserDefaults::setData(const QString& key, const QByteArray& value) {
    write(key, IniText::written(value));
}

bool UserDefaults::boolean(const QString& key) const {
    const QByteArray value = data(key).value_or(QByteArray()).toLower();
    return !value.isEmpty() && value != "false" && value != "0";
}

void UserDefaults::setBoolean(const QString& key, bool value) {
    write(key, IniText::written(value));
}

void UserDefaults::write(const QString& key, const QByteArray& written) {
    unsaved_.insert(key.toLatin1(), written);
    save();
}

void UserDefaults::refresh() {
    try {
        takeIn();
    } catch (const FileError&) { // which the next save meets as well, and tells
    }
}

void UserDefaults::save() {
    try {
        takeIn();
        keepAside();
        IniText changed = text_;
        for (auto value = unsaved_.cbegin(); value != unsaved_.cend(); ++value)
            changed.set(value.key(), value.value());
        const QByteArray bytes = changed.text();
        if (bytes.size() > sizeLimit)
            throw FileError(EFBIG);
        makeFolder(QFileInfo(file_).absolutePath());
        state_ = RegularFile::replace(file_, bytes);
        text_ = changed;
        unsaved_.clear();
        setFailure({});
    } catch (const FileError& error) {
        setFailure(error.reason);
    }
}

void UserDefaults::check() {
    const QString folder = QFileInfo(file_).absolutePath();
    const bool made = makeFolder(folder);
    try {
        takeIn();
        RegularFile::rehearse(file_, text_.text());
        setFailure({});
    } catch (const FileError& error) {
        setFailure(error.reason);
    }
    if (made)
        QDir().rmdir(folder);
}

/// Reads the file if it is another than the one last read or written. One that has gone is known
/// still. Throws a FileError.
void UserDefaults::takeIn() {
    const auto state = RegularFile::state(file_);
    if (state && unread_)
        throw FileError(*unread_);
    unread_.reset();
    if (!state || state == state_)
        return;
    const auto contents = RegularFile::read(file_, sizeLimit);
    if (!contents)
        return;
    text_ = IniText(contents->bytes);
    state_ = contents->state;
    unparsed_.clear();
    if (const qsizetype line = text_.firstBadLine(); line > 0) {
        unparsed_ = contents->bytes;
        Log::write(u"⚠️ %1: line %2 is no setting."_s.arg(file_, QString::number(line)));
    }
}

/// Copies a file that does not parse beside itself; earlier copies stay. Throws a FileError.
void UserDefaults::keepAside() {
    if (unparsed_.isEmpty())
        return;
    QString copy = file_ + u".unreadable"_s;
    for (int number = 2; QFileInfo::exists(copy); ++number)
        copy = file_ + u".unreadable-%1"_s.arg(number);
    RegularFile::replace(copy, unparsed_);
    unparsed_.clear();
    Log::write(u"⚠️ What it held is kept as %1."_s.arg(copy));
}

/// Tells the log when writing begins to fail and when it works again, the settings each time.
void UserDefaults::setFailure(const QString& reason) {
    if (unsaved_.isEmpty()) {
        retry_.stop();
        pause_ = firstPause_;
    } else {
        retry_.start(pause_);
    }
    if (reason == failure_)
        return;
    if (failure_.isEmpty())
        Log::write(u"⚠️ %1 cannot keep the settings: %2"_s.arg(file_, reason));
    else if (reason.isEmpty())
        Log::write(u"✅ %1 keeps the settings again."_s.arg(file_));
    failure_ = reason;
    Q_EMIT failureChanged();
}

} // namespace velmora
