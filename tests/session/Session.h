#pragma once

#include "model/ShortcutButton.h"
#include "session/Program.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"
#include "support/Witness.h"

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <optional>

namespace velmora::test {

/// A desktop session with a home of its own, in which the real program runs. When it is over, the
/// test fails if the program did not end as it should, or if its log holds a sanitizer's report or
/// an error of the X server.
class Session {
public:
    struct Options {
        QSize screen{1512, 982}; ///< pixels
        int topInset = 0;        ///< the cut-out's height in pixels; 0 for none
        QString windowManager = QStringLiteral("openbox");   ///< empty for none
        bool agreed = true;                                  ///< the terms were agreed to before
        std::optional<QList<ShortcutButton>> shortcuts = {}; ///< stored before the start
        QString program = buildTreeProgram();
        QStringList arguments = {};   ///< of each launch
        bool hasBus = false;          ///< a session bus of its own, with the usual services
        QStringList environment = {}; ///< more "NAME=value", or "NAME" to take one away
    };
    explicit Session(const Options& options);
    Session() : Session(Options{}) {}
    ~Session();

    static QString buildTreeProgram();

    enum class Launch { UntilTheBarIsThere, WithoutWaiting };
    /// Starts the program, after the end of the one launched before. Without `agreed` there is no
    /// bar to wait for.
    void launch(Launch launch = Launch::UntilTheBarIsThere);
    /// The program launched last.
    Program& program() { return *program_; }
    /// Starts the program once more beside it, with `arguments` beside those of the session.
    std::unique_ptr<Program> launchAnother(const QStringList& arguments = {}) const;
    /// Looks at the end of an instance that the program started in its place.
    static void expectEndOfSuccessor(qint64 processId);

    /// What programs of this session are started with.
    QProcessEnvironment environment() const;
    /// Of the bus, if it has one.
    QString busAddress() const { return QStringLiteral("unix:path=%1/bus").arg(home()); }

    /// The home folder, and the file of the stored settings in it.
    QString home() const { return home_.path(); }
    QString settingsFile() const;

    /// The log of all launches so far: standard error, without the time stamps.
    QStringList log() const;
    /// Waits for a log line that equals `line`.
    bool waitForLog(const QString& line, int milliseconds = 10000);

    /// The bar's window on the screen, if it is there: the widest that no window manager manages.
    std::optional<TopWindow> bar();

    /// A menu that is open now. Asking for the keyboard instead could keep it from the menu.
    std::optional<TopWindow> menu();

    /// The places of the bar's buttons on the screen, left to right, found by their lighter
    /// background. Pixels; without the menu button, which has none.
    std::vector<QRect> buttons();

    bool isBarShown() { return !buttons().empty(); }

    void pressHotKey();

    /// The title of the active window, empty without one.
    QString activeTitle();
    /// Waits until the settings window is the active one and has the keyboard focus.
    bool waitForSettings();

    /// Works in another application and then calls `ask`, which has the settings shown: first they
    /// are not open, then behind the other. Each time keys must reach them, not the other: one of
    /// the four default buttons goes.
    void expectSettingsInFront(const std::function<void()>& ask);

    XClient& client() { return *client_; }
    Driver& driver() { return *driver_; }
    TestDisplay& display() { return *display_; }

    /// Writes `text` into a file below home, making its folder.
    QString writeFile(const QString& relativePath, const QByteArray& text);
    /// The content of a file, empty when it is not there.
    static QByteArray readFile(const QString& path);

private:
    QString logFile() const { return home() + QStringLiteral("/log"); }

    Options options_;
    QTemporaryDir home_;
    std::unique_ptr<TestDisplay> display_;
    std::unique_ptr<XClient> client_;
    std::unique_ptr<Driver> driver_;
    std::unique_ptr<Program> program_;
};

} // namespace velmora::test
