#pragma once

#include "support/TestDisplay.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velmora::test {

/// The user's folder of desktop entries and the default handlers, in the private home of the test
/// program, with a program to start that writes down how it was started.
class ApplicationsFolder {
public:
    ApplicationsFolder() {
        write(
            program(), QStringLiteral("#!/bin/sh\n{ printf 'arg %s\\n' \"$@\"\n"
                                      "echo \"cwd $PWD\"; echo \"via $VIA\"\n"
                                      "set -- $(cat /proc/$$/stat); echo \"session $6\"\n"
                                      "} >'%1.new' && mv '%1.new' '%1'\n")
                           .arg(report()));
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::ExeOwner);
    }
    ~ApplicationsFolder() {
        QDir(path({})).removeRecursively();
        QFile::remove(handlers());
    }

    QString program() const { return file(QStringLiteral("program")); }
    QString report() const { return file(QStringLiteral("report")); }
    /// A folder for the test's own files.
    QString file(const QString& name) const { return files_.filePath(name); }

    /// Full path of the entry "<id>.desktop", or of the folder.
    QString path(const QString& id) const {
        return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/applications") +
               (id.isEmpty() ? id : u'/' + id + QStringLiteral(".desktop"));
    }

    /// Writes the entry `id`; `lines` beyond Type and Name, by default an Exec of the program.
    QString add(const QString& id, const QString& lines = {}) const {
        write(
            path(id), QStringLiteral("[Desktop Entry]\nType=Application\nName=Test\n%1\n")
                          .arg(lines.isEmpty() ? QStringLiteral("Exec=") + program() : lines));
        return path(id);
    }

    /// Makes the entry `id` the default handler of `type`, and of nothing else.
    void setDefault(const QString& type, const QString& id) const {
        write(handlers(), QStringLiteral("[Default Applications]\n%1=%2.desktop\n").arg(type, id));
    }

    /// Waits for the program's next report and gives its lines.
    QStringList nextReport() const {
        EXPECT_TRUE(waitFor([this] { return QFile::exists(report()); })) << "not started";
        QFile file(report());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QString text = QString::fromUtf8(file.readAll());
        file.remove();
        return text.split(u'\n', Qt::SkipEmptyParts);
    }

    /// Writes the whole file at once, as editors of such files do.
    static void write(const QString& path, const QString& text) {
        QDir().mkpath(QFileInfo(path).path());
        QSaveFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        file.write(text.toUtf8());
        EXPECT_TRUE(file.commit());
    }

private:
    static QString handlers() {
        return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/mimeapps.list");
    }

    QTemporaryDir files_;
};

} // namespace velmora::test
