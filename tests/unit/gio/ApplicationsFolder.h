#pragma once

#include "support/TestDisplay.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velmora::test {

/// The user's folder of desktop entries and the default handlers, in the private home of the test
/// program, with a program to start that writes down how it was started.
class ApplicationsFolder {
public:
    ApplicationsFolder() {
        QDir().mkpath(path({}));
        write(
            program(), QStringLiteral("#!/bin/sh\n"
                                      "{ for argument; do echo \"arg $argument\"; done\n"
                                      "echo \"cwd $PWD\"\n"
                                      "echo \"via $VIA\"\n"
                                      "set -- $(cat /proc/$$/stat); echo \"session $6\"\n"
                                      "} >'%1.new' && mv '%1.new' '%1'\n")
                           .arg(report()));
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ~ApplicationsFolder() {
        QDir(path({})).removeRecursively();
        QFile::remove(handlers());
    }

    QString program() const { return files_.filePath(QStringLiteral("program")); }
    QString report() const { return files_.filePath(QStringLiteral("report")); }
    /// A folder for the test's own files.
    QString file(const QString& name) const { return files_.filePath(name); }

    /// Full path of the entry "<id>.desktop".
    QString path(const QString& id) const {
        const QString folder =
            qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/applications");
        return id.isEmpty() ? folder : folder + u'/' + id + QStringLiteral(".desktop");
    }

    /// Writes the entry `id`; `lines` beyond Type and Name, by default an Exec of the program.
    QString add(const QString& id, const QStringList& lines = {}) const {
        const QStringList exec{QStringLiteral("Exec=") + program()};
        write(
            path(id), QStringLiteral("[Desktop Entry]\nType=Application\nName=Test\n") +
                          (lines.isEmpty() ? exec : lines).join(u'\n') + u'\n');
        return path(id);
    }

    /// Makes the entry `id` the default handler of `type`, and of nothing else.
    void setDefault(const QString& type, const QString& id) const {
        QDir().mkpath(qEnvironmentVariable("XDG_CONFIG_HOME"));
        write(handlers(), QStringLiteral("[Default Applications]\n%1=%2.desktop\n").arg(type, id));
    }

    /// Waits for the program's next report and gives its lines.
    QStringList nextReport() const {
        if (!waitFor([this] { return QFile::exists(report()); }))
            ADD_FAILURE() << "the program was not started";
        QFile file(report());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QString text = QString::fromUtf8(file.readAll());
        file.remove();
        return text.split(u'\n', Qt::SkipEmptyParts);
    }

    /// Writes the whole file at once, as editors of such files do.
    static void write(const QString& path, const QString& text) {
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
