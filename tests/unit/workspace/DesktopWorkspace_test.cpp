#include "platform/freedesktop/DesktopWorkspace.h"

#include "support/TestDisplay.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QVariantMap>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

// Before the application object, which may make GLib remember them: none of this machine's entries.
const bool isolated = qputenv("XDG_DATA_DIRS", "/nonexistent") &&
                      qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");

/// The user's folder of desktop entries and the default handlers, in the private home of the test
/// program, with a program to start that writes down how it was started.
class ApplicationsFolder {
public:
    ApplicationsFolder() {
        write(
            program(), u"#!/bin/sh\n{ printf 'arg %s\\n' \"$@\"\n"
                       "echo \"cwd $PWD\"; echo \"via $VIA\"\n"
                       "set -- $(cat /proc/$$/stat); echo \"session $6\"\n"
                       "} >'%1.new' && mv '%1.new' '%1'\n"_s.arg(report()));
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::ExeOwner);
    }
    ~ApplicationsFolder() {
        QDir(path({})).removeRecursively();
        QFile::remove(handlers());
    }

    QString program() const { return file(u"program"_s); }
    QString report() const { return file(u"report"_s); }
    /// A folder for the test's own files.
    QString file(const QString& name) const { return files_.filePath(name); }

    /// Full path of the entry "<id>.desktop", or of the folder.
    QString path(const QString& id) const {
        return qEnvironmentVariable("XDG_DATA_HOME") + u"/applications"_s +
               (id.isEmpty() ? id : u'/' + id + u".desktop"_s);
    }

    /// Writes the entry `id`; `lines` beyond Type and Name, by default an Exec of the program.
    QString add(const QString& id, const QString& lines = {}) const {
        write(
            path(id), u"[Desktop Entry]\nType=Application\nName=Test\n%1\n"_s.arg(
                          lines.isEmpty() ? u"Exec="_s + program() : lines));
        return path(id);
    }

    /// Makes the entry `id` the default handler of `type`, and of nothing else.
    void setDefault(const QString& type, const QString& id) const {
        write(handlers(), u"[Default Applications]\n%1=%2.desktop\n"_s.arg(type, id));
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
        return qEnvironmentVariable("XDG_CONFIG_HOME") + u"/mimeapps.list"_s;
    }

    QTemporaryDir files_;
};

class DesktopWorkspaceTest : public testing::Test {
protected:
    using Location = std::optional<QString>;

    /// Opens the application and waits for the completion: nothing, or the error.
    Location open(const QString& location) {
        std::optional<Location> outcome;
        workspace.openApplication(
            location, OpenConfiguration{}, [&](const Location& error) { outcome = error; });
        EXPECT_FALSE(outcome) << "completions come in a later turn";
        EXPECT_TRUE(waitFor([&] { return outcome.has_value(); }));
        return outcome.value_or(u"no completion"_s);
    }

    /// GIO watches its folders beside this thread, so a change shows a moment later.
    bool becomes(const QString& identifier, const Location& location) {
        return waitFor([&] { return workspace.applicationLocation(identifier) == location; });
    }

    ApplicationsFolder folder;
    DesktopWorkspace workspace;
};

} // namespace

TEST_F(DesktopWorkspaceTest, FindsEntriesByIdentifier) {
    const QString plain = folder.add(u"editor"_s);
    const QString reversed = folder.add(u"org.example.Editor"_s);
    folder.add(u"gone"_s, u"Exec=/nonexistent/program"_s);
    folder.add(u"deleted"_s, u"Hidden=true\nExec="_s + folder.program());
    ASSERT_TRUE(becomes(u"org.example.Editor"_s, reversed));
    const std::pair<QString, Location> cases[] = {
        {u"editor"_s, plain},
        {u"editor.desktop"_s, plain},
        {u"org.example.Editor.desktop"_s, reversed},
        {u"org.example.editor"_s, {}},
        {u"gone"_s, {}},
        {u"deleted"_s, {}},
        {QString(), {}},
        {u"../applications/editor"_s, {}},
    };
    for (const auto& [identifier, location] : cases)
        EXPECT_EQ(workspace.applicationLocation(identifier), location) << qPrintable(identifier);
    // Installed and removed while the program runs.
    const QString late = folder.add(u"late"_s);
    EXPECT_TRUE(becomes(u"late"_s, late));
    QFile::remove(late);
    EXPECT_TRUE(becomes(u"late"_s, {}));
}

TEST_F(DesktopWorkspaceTest, FindsWhatPlaysAWellKnownApplication) {
    const QString browser = folder.add(u"browser"_s);
    const QString other = folder.add(u"other"_s);
    const QString chromium = folder.add(u"chromium"_s);
    folder.setDefault(u"x-scheme-handler/https"_s, u"browser"_s);
    EXPECT_TRUE(becomes(u"com.apple.Safari"_s, browser));
    EXPECT_TRUE(becomes(u"com.google.Chrome"_s, chromium));
    folder.setDefault(u"x-scheme-handler/https"_s, u"other"_s); // the user chooses another
    EXPECT_TRUE(becomes(u"com.apple.Safari"_s, other));
    folder.setDefault(u"inode/directory"_s, u"other"_s);
    EXPECT_TRUE(becomes(u"com.apple.FINDER"_s, other)) << "the case is the user's";
    EXPECT_TRUE(becomes(u"com.apple.find\u00e9r"_s, {}));

    // An entry of that very identifier comes first.
    const QString own = folder.add(u"com.google.Chrome"_s);
    EXPECT_TRUE(becomes(u"com.google.Chrome"_s, own));
    EXPECT_EQ(workspace.applicationLocations(u"com.google.Chrome"_s), (QStringList{own, chromium}));
}

TEST_F(DesktopWorkspaceTest, StartsTheProgramAsItsEntrySays) {
    const QString location = folder.add(
        u"app"_s, u"Icon=icon\nPath=%1\nExec=env VIA=%% %2 \"two words\" %f %U %i"_s.arg(
                      folder.file(QString()), folder.program()));
    EXPECT_EQ(open(location), std::nullopt);
    QStringList report = folder.nextReport();
    EXPECT_NE(report.takeLast(), u"session %1"_s.arg(::getsid(0))) << "shares our session";
    EXPECT_EQ(
        report, (QStringList{
                    u"arg two words"_s, u"arg --icon"_s, u"arg icon"_s,
                    u"cwd "_s + QDir(folder.file(QString())).canonicalPath(), u"via %"_s}));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "it is a child of ours";
}

TEST_F(DesktopWorkspaceTest, RunsTerminalProgramsInTheTerminalEmulator) {
    const QByteArray path = qgetenv("PATH");
    const QString tools = folder.file(u"bin"_s);
    const QString location =
        folder.add(u"top"_s, u"Terminal=true\nExec=%1 -x"_s.arg(folder.program()));
    qputenv("PATH", tools.toUtf8());
    EXPECT_EQ(open(location), u"No terminal emulator is installed"_s);

    const QString terminal = tools + u"/x-terminal-emulator"_s;
    folder.write(
        terminal, u"#!/bin/sh\nPATH=/usr/bin:/bin VIA=$1; export PATH VIA; shift; exec \"$@\"\n"_s);
    QFile::setPermissions(terminal, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(open(location), std::nullopt);
    const QStringList report = folder.nextReport();
    EXPECT_EQ(report.value(0), u"arg -x"_s);
    EXPECT_TRUE(report.contains(u"via -e"_s));
    qputenv("PATH", path);
}

TEST_F(DesktopWorkspaceTest, SaysWhyAnApplicationDoesNotStart) {
    const std::pair<QString, QString> cases[] = {
        {folder.path(u"missing"_s), u"No such file or directory"_s},
        {folder.path({}), u"is a folder, not a desktop entry"_s},
        {folder.add(u"a"_s, u"Exec=/nonexistent/program --new"_s),
         u"The program “/nonexistent/program” does not exist or is not executable"_s},
        {folder.add(u"c"_s, u"Exec=true\nTryExec=/nonexistent/probe"_s), u"nonexistent/probe"_s},
        {folder.add(u"d"_s, u"Comment=No Exec"_s), u"Exec"_s},
    };
    for (const auto& [location, error] : cases)
        EXPECT_TRUE(open(location).value_or(QString()).contains(error))
            << qPrintable(location + u": "_s + open(location).value_or(u"started"_s));
}

namespace {

/// An application that is on the bus already.
class Application : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit Application(QObject* parent) : QDBusAbstractAdaptor(parent) {}
    int activations = 0;
public Q_SLOTS:
    void Activate(const QVariantMap&) { ++activations; }
};

/// A session bus of its own, with `object` on it.
class Bus {
public:
    Bus(const QString& name, const QString& path, QObject& object) {
        process_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        EXPECT_TRUE(process_.waitForReadyRead());
        const QByteArray address = process_.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection connection =
            QDBusConnection::connectToBus(QString::fromLatin1(address), name);
        EXPECT_TRUE(connection.registerObject(path, &object));
        EXPECT_TRUE(connection.registerService(name));
        name_ = name;
    }
    /// The bus goes away; the address stays.
    void end() {
        QDBusConnection::disconnectFromBus(name_);
        process_.terminate();
        process_.waitForFinished();
    }
    ~Bus() {
        end();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    }

private:
    QString name_;
    QProcess process_;
};

} // namespace

TEST_F(DesktopWorkspaceTest, ActivatesOverTheBus) {
    const QString lines = u"DBusActivatable=true\nExec="_s + folder.program();
    const QString present = folder.add(u"org.example.Present"_s, lines);
    const QString absent = folder.add(u"org.example.Absent"_s, lines);

    QObject object;
    auto* application = new Application(&object);
    Bus bus(u"org.example.Present"_s, u"/org/example/Present"_s, object);
    EXPECT_EQ(open(present), std::nullopt);
    EXPECT_EQ(application->activations, 1);
    EXPECT_TRUE(open(absent).value_or(QString()).contains(u"org.example.Absent"_s));
    EXPECT_FALSE(QFile::exists(folder.report())) << "the command was run as well";

    // The bus going away does not take us with it.
    bus.end();
    EXPECT_EQ(open(present), std::nullopt);
    folder.nextReport();
}

#include "DesktopWorkspace_test.moc"
