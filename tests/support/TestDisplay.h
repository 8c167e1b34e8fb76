#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QSize>
#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <vector>

namespace velmora::test {

/// A virtual X display of its own on a free number, ended with the object. Sets DISPLAY.
class TestDisplay {
public:
    /// Size in pixels. Throws when Xvfb does not start.
    explicit TestDisplay(int width = 1512, int height = 982);
    ~TestDisplay();

    /// Ends the server at once, with its clients still connected.
    void kill();

    /// Gives the only output that resolution in pixels, no larger than at the start; turns it off
    /// for none.
    void setResolution(QSize size);

    /// Starts `program` on this display and ends it with the object; waits until it runs.
    QProcess& start(
        const QString& program, const QStringList& arguments = {},
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

    /// Starts a window manager ("openbox", "xfwm4", …) and waits until it has taken over.
    QProcess& startWindowManager(const QString& program);

    /// Starts a session bus for programs with that environment and gives its address.
    QString startBus(const QProcessEnvironment& environment, const QString& address = {});

    /// Runs `program` to its end and gives its standard output.
    QByteArray
    run(const QString& program, const QStringList& arguments,
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

private:
    QProcessEnvironment makeXfceEnvironment();

    QTemporaryDir xfceSettings_;
    std::vector<std::unique_ptr<QProcess>> processes_;
};

/// Runs this thread's event loop until `condition` holds, looked at every few milliseconds, or
/// `milliseconds` have passed.
template<typename Condition>
bool waitFor(Condition condition, int milliseconds = 10000);

} // namespace velmora::test

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>

template<typename Condition>
bool velmora::test::waitFor(Condition condition, int milliseconds) {
    constexpr int interval = 3;
    const QDeadlineTimer deadline(milliseconds);
    // The loop blocks between two looks, as a program's does: whoever has to act before it sleeps
    // (events that a reply had put into a queue wake nobody) gets to it.
    QTimer wakeUp;
    if (QCoreApplication::instance())
        wakeUp.start(interval);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        if (QCoreApplication::instance())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        else
            QThread::msleep(interval);
    }
    return true;
}
