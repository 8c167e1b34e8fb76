#include "session/Session.h"

#include "model/StoredForm.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace velmora::test {
Session::Session(const Options& options) : options_(options) {
    display_ = std::make_unique<TestDisplay>(options.screen.width(), options.screen.height());
    if (!options.windowManager.isEmpty())
        display_->startWindowManager(options.windowManager);
    if (options.topInset > 0)
        display_->run(
            u"xprop"_s, {u"-root"_s, u"-f"_s, u"_SAFE_AREA_INSETS"_s, u"32c"_s, u"-set"_s,
                         u"_SAFE_AREA_INSETS"_s, u"%1, 0, 0, 0"_s.arg(options.topInset)});
    client_ = std::make_unique<XClient>();
    driver_ = std::make_unique<Driver>();
    if (options.hasBus)
        display_->startBus(environment(), busAddress());
    QDir().mkpath(QFileInfo(settingsFile()).path());
    QSettings settings(settingsFile(), QSettings::IniFormat);
    if (options.agreed)
        settings.setValue(u"hasAgreedToToS_v1"_s, true);
    if (options.shortcuts)
        settings.setValue(u"SavedShortcuts"_s, encodedList(*options.shortcuts));
}

Session::~Session() {
    program_.reset();
    for (const QString& line : log()) {
        for (const char* const fault : {"Sanitizer", "runtime error:", "X error", "XCB error"}) {
            if (line.contains(QLatin1String(fault))) {
                ADD_FAILURE() << log().join(u'\n').toStdString();
                return;
            }
        }
    }
}

QProcessEnvironment Session::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home());
    environment.insert(u"XDG_CONFIG_HOME"_s, home() + u"/.config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, home() + u"/.local/share"_s);
    environment.insert(u"XDG_CACHE_HOME"_s, home() + u"/.cache"_s);
    // Without it Qt starts a bus daemon that outlives the program.
    environment.insert(
        u"DBUS_SESSION_BUS_ADDRESS"_s, options_.hasBus ? busAddress() : u"disabled:"_s);
    // Qt warns when it is missing.
    environment.insert(u"XDG_RUNTIME_DIR"_s, home());
    environment.insert(u"LANG"_s, u"C.UTF-8"_s);
    environment.insert(
        u"LSAN_OPTIONS"_s, u"print_suppressions=0:suppressions="_s + QStringLiteral(VELMORA_LEAKS));
    for (const QString& name :
         {u"QT_QPA_PLATFORM"_s, u"LC_ALL"_s, u"WAYLAND_DISPLAY"_s, u"XDG_SESSION_TYPE"_s})
        environment.remove(name);
    for (const QString& setting : options_.environment) {
        const qsizetype equals = setting.indexOf(u'=');
        if (equals < 0)
            environment.remove(setting);
        else
            environment.insert(setting.left(equals), setting.mid(equals + 1));
    }
    return environment;
}

QString Session::buildTreeProgram() {
    return QStringLiteral(VELMORA_PROGRAM);
}

void Session::launch(Launch launch) {
    program_.reset();
    program_ = launchAnother();
    if (launch == Launch::WithoutWaiting || !options_.agreed)
        return;
    if (!waitFor([this] { return bar().has_value(); }))
        throw std::runtime_error("the bar did not come up:\n" + log().join(u'\n').toStdString());
}

std::unique_ptr<Program> Session::launchAnother(const QStringList& arguments) const {
    return std::make_unique<Program>(
        options_.program, options_.arguments + arguments, environment(), logFile());
}

void Session::expectEndOfSuccessor(qint64 processId) {
    // The test program adopts it (SessionMain).
    int status = 0;
    const auto id = static_cast<pid_t>(processId);
    EXPECT_TRUE(waitFor([&] { return ::waitpid(id, &status, WNOHANG) == id; })) << processId;
    EXPECT_EQ(status, 0) << processId;
}

QString Session::settingsFile() const {
    return home() + u"/.config/velmora/velmora.conf"_s;
}

QStringList Session::log() const {
    QStringList lines = QString::fromUtf8(readFile(logFile())).split(u'\n');
    lines.removeLast(); // nothing, or not yet a whole line
    for (QString& line : lines) {
        const qsizetype stampEnd = line.indexOf(u"] "_s);
        if (stampEnd > 0 && line.contains(u" velmora["_s))
            line = line.mid(stampEnd + 2);
    }
    return lines;
}

bool Session::waitForLog(const QString& line, int milliseconds) {
    return waitFor([&] { return log().contains(line); }, milliseconds);
}

std::optional<TopWindow> Session::bar() {
    // A window manager's own say nothing about their process; menus and tool tips are narrow.
    for (const TopWindow& window : topWindows(*client_)) {
        if (window.overrideRedirect && window.mapped && window.processId != 0 &&
            3 * window.geometry.width() >= options_.screen.width())
            return window;
    }
    return std::nullopt;
}

std::optional<TopWindow> Session::menu() {
    constexpr int leastHeight = 50; // tool tips and the bar are lower
    for (const TopWindow& window : topWindows(*client_)) {
        if (window.overrideRedirect && window.mapped && window.geometry.height() >= leastHeight)
            return window;
    }
    return std::nullopt;
}

std::vector<QRect> Session::buttons() {
    const auto window = bar();
    if (!window)
        return {};
    const QImage image = screenshot(*client_, window->geometry);
    const int row = image.height() / 2;
    // A button's background is this much lighter than the bar above it.
    constexpr int contrast = 12;
    std::vector<QRect> found;
    int start = -1;
    for (int x = 0; x <= image.width(); ++x) {
        const bool inside =
            x < image.width() && qGray(image.pixel(x, row)) - qGray(image.pixel(x, 0)) >= contrast;
        if (inside && start < 0)
            start = x;
        if (!inside && start >= 0) {
            // Narrower things are the menu glyph's strokes.
            if (x - start >= 20)
                found.emplace_back(start, row - 4, x - start, 8);
            start = -1;
        }
    }
    return found;
}

void Session::pressHotKey() {
    driver_->tapChord("LALT", "AB07");
}

QString Session::activeTitle() {
    const auto cookie = xcb_get_property(
        *client_, 0, activeWindow(*client_), client_->atom("_NET_WM_NAME"),
        client_->atom("UTF8_STRING"), 0, 100);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(*client_, cookie, nullptr));
    if (!reply)
        return {};
    return QString::fromUtf8(
        static_cast<const char*>(xcb_get_property_value(reply.get())),
        xcb_get_property_value_length(reply.get()));
}

bool Session::waitForSettings() {
    return waitFor([this] {
        return activeTitle() == u"Velmora 設定"_s && inputFocus(*client_) == activeWindow(*client_);
    });
}

void Session::expectSettingsInFront(const std::function<void()>& ask) {
    for (const bool isOpen : {false, true}) {
        SCOPED_TRACE(isOpen ? "open behind" : "not open");
        Witness witness({0, 100, options_.screen.width(), options_.screen.height() - 200});
        driver_->tapKey("AC01");
        ASSERT_TRUE(witness.waitForInput(2));
        witness.markAsInUse();
        witness.clear();
        ask();
        EXPECT_TRUE(waitForSettings());
        driver_->tapKey(isOpen ? "HOME" : "END");
        driver_->tapKey("DELE");
        const size_t left = isOpen ? 2 : 3;
        EXPECT_TRUE(waitFor([&] { return buttons().size() == left; }));
        // A menu closes on the press of Return: the release may go to what was in front.
        for (const Witness::Event& event : witness.keys())
            EXPECT_NE(event.type, XCB_KEY_PRESS) << int(event.detail);
    }
}

QString Session::writeFile(const QString& relativePath, const QByteArray& text) {
    const QString path = home() + u'/' + relativePath;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        throw std::runtime_error("cannot write " + path.toStdString());
    return path;
}

QByteArray Session::readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace velmora::test
