#pragma once

#include <QProcess>
#include <QProcessEnvironment>

namespace velmora::test {

/// A run of the real program, whose end belongs to the test: by itself or when it is asked to,
/// soon, by no signal and with the status expected; anything else fails the test.
class Program final : public QProcess {
public:
    /// Starts `file`; its standard error is added to `logFile`. Throws when it cannot be started.
    Program(
        const QString& file, const QStringList& arguments, const QProcessEnvironment& environment,
        const QString& logFile);
    /// Asks it to end unless it has ended, and looks at its end.
    ~Program() override { end(); }

    bool isRunning() const { return state() != NotRunning; }

    /// Says that it ends with another status than 0.
    void expectStatus(int status) { expectedStatus_ = status; }
    /// Kills it, as a crash would; that is the end expected then.
    void kill();
    /// Asks it to end unless it has ended, and looks at its end. Only once.
    void end();

private:
    int expectedStatus_ = 0;
    bool isSeenOff_ = false;
};

} // namespace velmora::test
