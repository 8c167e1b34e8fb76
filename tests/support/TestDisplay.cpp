#include "support/TestDisplay.h"

#include <poll.h>
#include <stdexcept>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

/// Ends `process` and waits for it.
void end(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(3000)) {
        process.kill();
        process.waitForFinished(3000);
    }
}

} // namespace

TestDisplay::TestDisplay(int width, int height) {
    // Xvfb picks a free number and writes it to the pipe once it accepts clients.
    int pipe[2];
    if (::pipe(pipe) != 0)
        throw std::runtime_error("pipe failed");
    auto xvfb = std::make_unique<QProcess>();
    xvfb->setProcessChannelMode(QProcess::SeparateChannels);
    xvfb->setStandardErrorFile(QProcess::nullDevice());
    xvfb->start(
        u"Xvfb"_s, {u"-displayfd"_s, QString::number(pipe[1]), u"-noreset"_s, u"-screen"_s, u"0"_s,
                    u"%1x%2x24"_s.arg(width).arg(height), u"-nolisten"_s, u"tcp"_s});
    ::close(pipe[1]);
    QByteArray number;
    char byte = 0;
    pollfd descriptor{pipe[0], POLLIN, 0};
    while (::poll(&descriptor, 1, 10000) > 0 && ::read(pipe[0], &byte, 1) == 1 && byte != '\n')
        number += byte;
    ::close(pipe[0]);
    if (number.isEmpty())
        throw std::runtime_error("Xvfb did not start");
    qputenv("DISPLAY", ':' + number);
    processes_.push_back(std::move(xvfb));
}

TestDisplay::~TestDisplay() {
    // Clients before the server.
    while (!processes_.empty()) {
        end(*processes_.back());
        processes_.pop_back();
    }
}

void TestDisplay::kill() {
    processes_.front()->kill();
    processes_.front()->waitForFinished();
}

void TestDisplay::setResolution(QSize size) {
    const QString output = u"screen"_s;
    if (size.isEmpty()) {
        run(u"xrandr"_s, {u"--output"_s, output, u"--off"_s});
        return;
    }
    const QString width = QString::number(size.width()), height = QString::number(size.height());
    const QString mode = width + u'x' + height;
    // Does nothing where the mode is there.
    run(u"xrandr"_s, QStringList{u"--newmode"_s, mode, u"1"_s} +
                         QStringList{width, width, width, width, height, height, height, height});
    run(u"xrandr"_s, {u"--addmode"_s, output, mode});
    run(u"xrandr"_s, {u"--output"_s, output, u"--mode"_s, mode});
}

QProcess& TestDisplay::start(
    const QString& program, const QStringList& arguments, const QProcessEnvironment& environment) {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(program, arguments);
    if (!process->waitForStarted())
        throw std::runtime_error(program.toStdString() + " did not start");
    processes_.push_back(std::move(process));
    return *processes_.back();
}

QProcess& TestDisplay::startWindowManager(const QString& program) {
    QProcess& process = program == u"xfwm4" ? start(program, {}, makeXfceEnvironment())
                        : program == u"i3"  ? start(program, {u"-c"_s, u"/dev/null"_s})
                                            : start(program);
    const bool running = waitFor([this] {
        return run(u"xprop"_s, {u"-root"_s, u"_NET_SUPPORTING_WM_CHECK"_s}).contains("window id");
    });
    if (!running)
        throw std::runtime_error(program.toStdString() + " did not take over");
    return process;
}

QString TestDisplay::startBus(const QProcessEnvironment& environment, const QString& address) {
    QStringList arguments{u"--session"_s, u"--nofork"_s, u"--print-address"_s};
    if (!address.isEmpty())
        arguments.append(u"--address="_s + address);
    QProcess& bus = start(u"dbus-daemon"_s, arguments, environment);
    if (!waitFor([&] { return bus.waitForReadyRead(10) || bus.canReadLine(); }))
        throw std::runtime_error("no session bus");
    return QString::fromUtf8(bus.readLine().trimmed());
}

/// A session bus, which xfwm4 keeps its settings behind, and settings that are strict about the
/// focus: not its default, but the harder case.
QProcessEnvironment TestDisplay::makeXfceEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, xfceSettings_.path());
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, startBus(environment));
    run(u"xfconf-query"_s,
        {u"-c"_s, u"xfwm4"_s, u"-p"_s, u"/general/prevent_focus_stealing"_s, u"-n"_s, u"-t"_s,
         u"bool"_s, u"-s"_s, u"true"_s},
        environment);
    return environment;
}

QByteArray TestDisplay::run(
    const QString& program, const QStringList& arguments, const QProcessEnvironment& environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

} // namespace velmora::test
