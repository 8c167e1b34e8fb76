#include "foundation/LoginItem.h"

#include "foundation/Environment.h"
#include "foundation/RegularFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr qint64 sizeLimit = 1024 * 1024; // bytes

/// A path as the argument of an Exec key: quoted, percent signs doubled, and escaped once more as
/// every string of a desktop entry is.
QString execArgument(const QString& path) {
    QString quoted;
    for (const QChar character : path) {
        if (u"\"`$\\"_s.contains(character))
            quoted += u'\\';
        quoted += character;
        if (character == u'%')
            quoted += u'%';
    }
    return u'"' + quoted.replace(u'\\', u"\\\\"_s) + u'"';
}

bool isSwitchedOff(const QByteArray& entry) {
    bool inside = false;
    for (const QByteArray& whole : entry.split('\n')) {
        const QByteArray line = whole.trimmed();
        if (line.startsWith('['))
            inside = line == "[Desktop Entry]";
        const qsizetype equals = line.indexOf('=');
        if (!inside || equals < 0)
            continue;
        const QByteArray key = line.first(equals).trimmed();
        const QByteArray value = line.sliced(equals + 1).trimmed();
        if ((key == "Hidden" && value == "true") ||
            (key == "X-GNOME-Autostart-enabled" && value == "false"))
            return true;
    }
    return false;
}

} // namespace

LoginItem::LoginItem(QString entry, QString program)
    : entry_(std::move(entry)), program_(std::move(program)) {}

LoginItem LoginItem::ofThisProgram() {
    return {
        Environment::configurationFolder() + u"/autostart/velmora.desktop"_s,
        QCoreApplication::applicationFilePath()};
}

LoginItem::State LoginItem::state() const {
    const auto entry = RegularFile::bytes(entry_, sizeLimit);
    if (!entry)
        return State::off;
    return isSwitchedOff(*entry) ? State::switchedOff : State::on;
}

void LoginItem::setEnabled(bool enabled) const {
    if (!enabled) {
        if (std::remove(QFile::encodeName(entry_).constData()) != 0 && errno != ENOENT)
            throw FileError(errno);
        return;
    }
    const QString folder = QFileInfo(entry_).absolutePath();
    QDir().mkpath(QFileInfo(folder).absolutePath());
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST)
        throw FileError(errno);
    const QString text = u"[Desktop Entry]\n"
                         "Type=Application\n"
                         "Name=Velmora\n"
                         "Icon=velmora\n"
                         "Exec=%1\n"
                         "StartupNotify=false\n"_s;
    RegularFile::replace(entry_, text.arg(execArgument(program_)).toUtf8());
}

} // namespace velmora
