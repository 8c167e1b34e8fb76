// Measures the settings window on a virtual display of its own, inside the process, and prints a
// Markdown table: opening it, an edit of a long list, and the application chooser over many desktop
// entries. Painted means that the server has the picture.

#include "foundation/UserDefaults.h"
#include "model/ShortcutManager.h"
#include "overlay/ContentView.h"
#include "platform/x11/base/QtConnection.h"
#include "platform/x11/session/X11Session.h"
#include "settings/SettingsWindow.h"
#include "settings/applications/AppPickerView.h"
#include "support/TestDisplay.h"
#include "viewkit/Sheet.h"
#include "viewkit/Style.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int runs = 21;
constexpr int openings = 10;
constexpr int buttons = 1000;
constexpr int applications = 2000;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/// Notes how long one event at most held the main thread, and which widgets were painted.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && receiver->isWidgetType())
            painted.append(receiver);
        ++depth_;
        const auto start = Clock::now();
        const bool result = QApplication::notify(receiver, event);
        if (--depth_ == 0)
            longest = std::max(longest, since(start));
        return result;
    }

    /// Runs the event loop until `widget` was painted after this call, if `isReady` holds by then.
    void awaitPaint(const QObject& widget, const std::function<bool()>& isReady = {}) {
        painted.clear();
        do
            processEvents(QEventLoop::WaitForMoreEvents);
        while (!painted.contains(&widget) || (isReady && !isReady()));
        syncQtConnection();
    }

    QList<const QObject*> painted;
    double longest = 0;

private:
    int depth_ = 0;
};

/// Private dirty memory in KiB.
double privateDirty() {
    QFile source(u"/proc/self/smaps_rollup"_s);
    if (!source.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : source.readAll().split('\n')) {
        if (line.startsWith("Private_Dirty:"))
            return line.mid(14).simplified().split(' ').first().toDouble();
    }
    return 0;
}

/// Lets what is pending, deferred deletions included, happen.
void settle() {
    waitFor([] { return false; }, 300);
}

void writeDesktopEntries(const QString& folder) {
    QDir().mkpath(folder + u"/applications"_s);
    for (int i = 0; i < applications; ++i) {
        QFile file(folder + u"/applications/org.example.app%1.desktop"_s.arg(i));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        file.write(u"[Desktop Entry]\nType=Application\nName=Application %1\nName[de]=Anwendung "
                   "%1\nExec=true\nIcon=utilities-terminal\nCategories=Utility;\n"_s.arg(i)
                       .toUtf8());
    }
}

void measureWindow(Application& application) {
    SettingsWindow& settings = SettingsWindow::shared();
    const double before = privateDirty();
    std::vector<double> times;
    std::vector<double> memory;
    for (int opening = 0; opening < openings; ++opening) {
        const auto start = Clock::now();
        settings.show();
        application.awaitPaint(*settings.window());
        times.push_back(since(start));
        settle();
        settings.close();
        settle();
        memory.push_back(privateDirty());
    }
    std::printf(
        "| settings window, command to painted | first %.1f ms, second %.1f ms, median of %d %.1f "
        "ms |\n",
        times[0], times[1], openings, median(times));
    std::printf(
        "| private dirty memory | before %.1f MiB, after one opening %.1f MiB, after %d %.1f MiB "
        "|\n",
        before / 1024, memory.front() / 1024, openings, memory.back() / 1024);
}

void measureEdit(Application& application) {
    ShortcutManager& manager = ShortcutManager::shared();
    while (manager.shortcuts().size() < buttons)
        manager.addShortcut(
            {u"Button %1"_s.arg(manager.shortcuts().size()), u"star"_s,
             OpenUrl{u"https://example.org/"_s}});
    ContentView bar(
        manager, [] { return false; }, [](const ShortcutAction&) {});
    bar.setGeometry(0, 0, 1512, 24);
    bar.show();
    SettingsWindow::shared().show();
    application.awaitPaint(*SettingsWindow::shared().window());
    settle();
    std::vector<double> times;
    std::vector<double> saving;
    for (int run = 0; run < runs; ++run) {
        ShortcutButton button = manager.shortcuts()[0];
        button.title = u"Edit %1"_s.arg(run);
        const auto start = Clock::now();
        manager.updateShortcut(0, button);
        saving.push_back(since(start));
        application.awaitPaint(bar);
        times.push_back(since(start));
        settle();
    }
    SettingsWindow::shared().close();
    settle();
    std::printf(
        "| one edit of %d buttons, saved and on the bar, settings open | %.1f ms (of which saved "
        "%.1f ms) |\n",
        buttons, median(times), median(saving));
}

void measureChooser(Application& application) {
    SettingsWindow::shared().show();
    QWidget& window = *SettingsWindow::shared().window();
    application.awaitPaint(window);
    settle();
    std::vector<double> times;
    std::vector<double> held;
    for (int run = 0; run < runs; ++run) {
        application.longest = 0;
        const auto start = Clock::now();
        auto made = std::make_unique<AppPickerView>(QString(), [](const AppInfo&) {});
        AppPickerView& picker = *made;
        Sheet::present(window, std::move(made));
        application.longest = since(start);
        application.awaitPaint(picker, [&] { return picker.model().rowCount() > 0; });
        times.push_back(since(start));
        settle();
        held.push_back(application.longest);
        Sheet::dismiss(picker);
        settle();
    }
    std::printf(
        "| chooser of %d applications, opening to the list | first %.1f ms, median %.1f ms |\n",
        applications, times.front(), median(times));
    std::printf(
        "| main thread held by one event of it | first %.1f ms, median %.1f ms |\n", held.front(),
        median(held));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_DATA_HOME", (home.path() + u"/data"_s).toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_LOGGING_RULES", "*=false");
    writeDesktopEntries(home.path() + u"/data"_s);
    TestDisplay display;
    display.startWindowManager(u"openbox"_s);
    const auto session = X11Session::open();
    if (!session)
        return 1;
    QApplication::setStyle(new Style);
    Application application(argc, argv);
    Session::setCurrent(*session);
    QApplication::setQuitOnLastWindowClosed(false);

    std::printf("| what | measured |\n|---|---|\n");
    measureWindow(application);
    measureEdit(application);
    measureChooser(application);
    return 0;
}
