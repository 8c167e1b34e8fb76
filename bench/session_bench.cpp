// Measures the real program on a virtual display of its own and prints a Markdown table: time from
// exec to the painted bar beside a minimal Qt Widgets window, private memory, wake-ups while idle,
// and the time from a click to the start of the child it runs beside the shell's own start.

#include "model/MouseButtonBinding.h"
#include "model/StoredForm.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/TestDisplay.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

namespace {

constexpr int runs = 21;
constexpr int idleSeconds = 10;
constexpr QPoint probe{700, 2}; // inside both windows, where neither draws anything else

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/// A running program, ended with the object.
class Running {
public:
    Running(const QString& program, const QTemporaryDir& home) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s);
        environment.insert(u"LANG"_s, u"C.UTF-8"_s);
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        start_ = Clock::now();
        process_.start(program, QStringList{});
    }
    ~Running() {
        process_.terminate();
        process_.waitForFinished();
    }

    /// Milliseconds from exec until the probe's colour is not `background` any more.
    double untilPainted(const XClient& client, QRgb background) const {
        while (pixel(client, probe) == background) {
            if (Clock::now() - start_ > std::chrono::seconds(20))
                qFatal("nothing was painted");
            QThread::usleep(100); // leaves the server and the second core to the program
        }
        return Milliseconds(Clock::now() - start_).count();
    }

    /// Private dirty memory in KiB.
    double privateDirty() const { return number(u"smaps_rollup"_s, "Private_Dirty:"); }

    /// How often its threads have gone to sleep so far; one wake-up each.
    double sleeps() const {
        double total = 0;
        const QString tasks = u"/proc/%1/task"_s.arg(process_.processId());
        for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            total += number(u"task/"_s + task + u"/status"_s, "voluntary_ctxt_switches:");
        return total;
    }

private:
    double number(const QString& file, const QByteArray& name) const {
        QFile source(u"/proc/%1/%2"_s.arg(process_.processId()).arg(file));
        if (!source.open(QIODevice::ReadOnly))
            return 0;
        for (const QByteArray& line : source.readAll().split('\n')) {
            if (line.startsWith(name))
                return line.mid(name.size()).simplified().split(' ').first().toDouble();
        }
        return 0;
    }

    QProcess process_;
    Clock::time_point start_;
};

/// A home with `count` stored buttons, half of them on each side.
void store(const QTemporaryDir& home, qsizetype count, const ShortcutAction& action) {
    QList<ShortcutButton> buttons;
    for (qsizetype i = 0; i < count; ++i)
        buttons.append(
            {u"Button %1"_s.arg(i + 1), u"star"_s, action,
             i % 2 ? ButtonAlignment::right : ButtonAlignment::left});
    QDir().mkpath(home.path() + u"/velmora"_s);
    QSettings settings(home.path() + u"/velmora/velmora.conf"_s, QSettings::IniFormat);
    settings.setValue(u"hasAgreedToToS_v1"_s, true);
    settings.setValue(u"SavedShortcuts"_s, encodedList(buttons));
}

/// The time that the stamp program left in `file`, once it is there, in nanoseconds.
long long stampedTime(const QString& file) {
    QByteArray text;
    waitFor([&] {
        QFile source(file);
        text = source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
        return !text.isEmpty();
    });
    QFile::remove(file);
    return text.toLongLong();
}

long long now() {
    return std::chrono::nanoseconds(Clock::now().time_since_epoch()).count();
}

/// Times of one run after another, and how to say them.
struct Series {
    const char* name;
    std::vector<double> milliseconds = {};
};

/// From a press to what it does: the bar's pixels, or the first instruction of the child that it
/// starts, with hot-key daemons doing the same on the same display.
void measureReactions(
    const XClient& client, Driver& driver, const QString& folder, QRgb background) {
    const QTemporaryDir home;
    const QString stampFile = home.path() + u"/stamp"_s;
    const QString command = u"exec %1/stamp %2"_s.arg(folder, stampFile);
    store(home, 4, ExecuteShellCommand{command});
    {
        QSettings settings(home.path() + u"/velmora/velmora.conf"_s, QSettings::IniFormat);
        settings.setValue(
            u"SavedMouseBindings"_s,
            encodedList(QList<MouseButtonBinding>{{3, ExecuteShellCommand{command}}}));
    }
    const auto write = [&](const QString& name, const QString& text) {
        QFile file(home.path() + u'/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("cannot write");
        return file.fileName();
    };
    const QString sxhkdFile = write(u"sxhkdrc"_s, u"alt + n\n    %1\n"_s.arg(command));
    const QString xbindkeysFile =
        write(u"xbindkeysrc"_s, u"\"%1\"\n  alt + b\n\"%1\"\n  b:9\n"_s.arg(command));
    qputenv("SXHKD_SHELL", "/bin/zsh");
    qputenv("SHELL", "/bin/zsh");
    QProcess sxhkd;
    QProcess xbindkeys;
    if (!QStandardPaths::findExecutable(u"sxhkd"_s).isEmpty())
        sxhkd.start(u"sxhkd"_s, {u"-c"_s, sxhkdFile});
    if (!QStandardPaths::findExecutable(u"xbindkeys"_s).isEmpty())
        xbindkeys.start(u"xbindkeys"_s, {u"-n"_s, u"-f"_s, xbindkeysFile});

    const Running program(folder + u"/velmora"_s, home);
    program.untilPainted(client, background);
    QThread::sleep(1); // the daemons have their grabs

    Series shell{"the shell started bare"};
    Series click{"click on a button"};
    Series button{"bound mouse button"};
    Series sxhkdKey{"sxhkd, hot key"};
    Series xbindkeysKey{"xbindkeys, hot key"};
    Series xbindkeysButton{"xbindkeys, mouse button"};
    Series toggle{"hot key"};
    const auto stampedSince = [&](long long start, Series& series) {
        series.milliseconds.push_back(static_cast<double>(stampedTime(stampFile) - start) / 1e6);
    };
    const auto chord = [&](const char* key, Series& series) {
        driver.pressKey("LALT");
        const long long start = now();
        driver.pressKey(key);
        stampedSince(start, series);
        driver.releaseKey(key);
        driver.releaseKey("LALT");
    };
    const auto press = [&](uint8_t number, Series& series) {
        const long long start = now();
        driver.pressButton(number);
        stampedSince(start, series);
        driver.releaseButton(number);
    };
    driver.move(90, 12);
    for (int run = 0; run < runs; ++run) {
        const long long start = now();
        QProcess::startDetached(u"/bin/zsh"_s, {u"-c"_s, command});
        stampedSince(start, shell);

        driver.pressButton(1);
        const long long released = now();
        driver.releaseButton(1);
        stampedSince(released, click);

        press(8, button);
        if (sxhkd.state() == QProcess::Running)
            chord("AB06", sxhkdKey);
        if (xbindkeys.state() == QProcess::Running) {
            chord("AB05", xbindkeysKey);
            press(9, xbindkeysButton);
        }

        const QRgb before = pixel(client, probe);
        driver.pressKey("LALT");
        const long long pressed = now();
        driver.pressKey("AB07");
        while (pixel(client, probe) == before) {
        }
        toggle.milliseconds.push_back(static_cast<double>(now() - pressed) / 1e6);
        driver.releaseKey("AB07");
        driver.releaseKey("LALT");
        // Shown again for the next run's click.
        driver.pressKey("LALT");
        driver.tapKey("AB07");
        driver.releaseKey("LALT");
        waitFor([&] { return pixel(client, probe) == before; });
    }
    for (QProcess* daemon : {&sxhkd, &xbindkeys}) {
        daemon->terminate();
        daemon->waitForFinished();
    }
    std::printf(
        "\n| from the press to the child's first instruction | median | beside the shell |\n");
    std::printf("|---|---|---|\n");
    for (const Series& series : {shell, click, button, sxhkdKey, xbindkeysKey, xbindkeysButton}) {
        if (!series.milliseconds.empty())
            std::printf(
                "| %s | %.2f ms | %+.2f ms |\n", series.name, median(series.milliseconds),
                median(series.milliseconds) - median(shell.milliseconds));
    }
    std::printf(
        "\nHot key to changed pixels: %.2f ms (median of %d).\n", median(toggle.milliseconds),
        runs);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    // What the linker has just written counts as a process's dirty memory until the disk has it.
    sync();
    const TestDisplay display;
    const XClient client;
    Driver driver;
    const QRgb background = pixel(client, probe);
    const auto gone = [&] { return waitFor([&] { return pixel(client, probe) == background; }); };

    std::printf("| what | minimal Qt window | 4 buttons | 100 buttons | 1,000 buttons |\n");
    std::printf("|---|---|---|---|---|\n");

    const std::vector<qsizetype> counts{4, 100, 1000};
    std::vector<QTemporaryDir> homes(counts.size() + 1);
    for (size_t i = 0; i < counts.size(); ++i)
        store(homes[i + 1], counts[i], OpenUrl{u"https://example.org/"_s});

    // Interleaved, so that a slow moment of the machine meets all of them.
    std::vector<std::vector<double>> painted(homes.size());
    std::vector<std::vector<double>> memory(homes.size());
    for (int run = 0; run < runs; ++run) {
        for (size_t i = 0; i < homes.size(); ++i) {
            {
                const Running program(
                    folder + (i ? u"/velmora"_s : u"/minimal_window"_s), homes[i]);
                painted[i].push_back(program.untilPainted(client, background));
                QThread::msleep(300); // what start-up leaves for later is part of its memory
                memory[i].push_back(program.privateDirty());
            }
            gone();
            QThread::msleep(50); // the server tidies up after it
        }
    }
    const auto row = [](const char* name, const std::vector<std::vector<double>>& values,
                        const char* unit, double scale) {
        const double reference = median(values[0]);
        std::printf("| %s | %.1f %s |", name, reference * scale, unit);
        for (size_t i = 1; i < values.size(); ++i)
            std::printf(
                " %.1f %s (%.2f x) |", median(values[i]) * scale, unit,
                median(values[i]) / reference);
        std::printf("\n");
    };
    row("exec to painted", painted, "ms", 1);
    row("private dirty memory", memory, "MiB", 1 / 1024.0);

    std::printf("| wake-ups in %d s idle | |", idleSeconds);
    for (size_t i = 1; i < homes.size(); ++i) {
        const Running program(folder + u"/velmora"_s, homes[i]);
        program.untilPainted(client, background);
        QThread::sleep(2);
        const double before = program.sleeps();
        QThread::sleep(idleSeconds);
        std::printf(" %.0f |", program.sleeps() - before);
    }
    std::printf("\n");

    measureReactions(client, driver, folder, background);
    return 0;
}
