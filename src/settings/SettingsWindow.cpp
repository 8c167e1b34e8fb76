#include "settings/SettingsWindow.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "input/MouseButtonManager.h"
#include "model/ShortcutManager.h"
#include "platform/Platform.h"
#include "platform/Relaunch.h"
#include "platform/WindowActivation.h"
#include "settings/AboutView.h"
#include "settings/MainMenuBar.h"
#include "settings/WindowFrame.h"
#include "viewkit/HeldKeys.h"
#include "viewkit/Sheet.h"
#include "viewkit/WindowTheme.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

/// Under the autosave name "SettingsWindow".
const QString frameKey = u"NSWindow Frame SettingsWindow"_s;
/// A window that is being dragged is saved when it comes to rest.
constexpr auto saveDelay = 300ms;

QList<QRect> availableScreens() {
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    return screens;
}

} // namespace

/// Titled, closable and resizable (style mask 11), without a minimise button.
class SettingsWindow::Window : public QWidget {
public:
    explicit Window(SettingsWindow& owner)
        : QWidget(
              nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                           Qt::WindowMaximizeButtonHint),
          owner_(owner) {}

protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        owner_.windowWillClose();
    }
    void moveEvent(QMoveEvent*) override { frameChanged(); }
    void resizeEvent(QResizeEvent*) override { frameChanged(); }

private:
    void frameChanged() {
        if (isVisible())
            owner_.saveTimer_.start();
    }

    SettingsWindow& owner_;
};

SettingsWindow& SettingsWindow::shared() {
    static auto* instance =
        new SettingsWindow(UserDefaults::standard(), Platform::current().windowActivation, [] {
            return SettingsServices{
                .shortcutManager = ShortcutManager::shared(),
                .mouseManager = MouseButtonManager::shared(),
                .eventTaps = Platform::current().eventTaps,
                .relaunch =
                    [](std::function<void()> completion) {
                        relaunch(Platform::current().singleInstance, std::move(completion));
                    },
                .infoDictionary = Bundle::infoDictionary()};
        });
    return *instance;
}

SettingsWindow::SettingsWindow(
    UserDefaults& defaults, WindowActivation& activation,
    std::function<SettingsServices()> services)
    : defaults_(defaults), activation_(activation), services_(std::move(services)) {
    saveTimer_.setSingleShot(true);
    saveTimer_.setInterval(saveDelay);
    connect(&saveTimer_, &QTimer::timeout, this, &SettingsWindow::saveFrame);
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::show() {
    if (!window_)
        makeWindow();
    activation_.makeKeyAndOrderFront(*window_);
    // An open sheet holds the window's input; a sheet may have one of its own.
    for (Sheet* sheet : window_->findChildren<Sheet*>()) {
        if (sheet->isVisible())
            activation_.makeKeyAndOrderFront(*sheet);
    }
}

void SettingsWindow::makeWindow() {
    window_ = std::make_unique<Window>(*this);
    window_->setWindowTitle(u"Velmora 設定"_s);
    WindowTheme::follow(*window_);
    new HeldKeys(window_.get());
    auto* menuBar = new MainMenuBar(mainMenu_);
    window_->addActions(menuBar->commands());
    auto* close = new QShortcut(QKeySequence(u"Ctrl+W"_s), window_.get());
    close->setAutoRepeat(false);
    connect(close, &QShortcut::activated, window_.get(), &QWidget::close);
    auto* view = new SettingsView(services_());
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menuBar);
    layout->addWidget(view);
    restoreFrame();
    view->currentWidget()->setFocus();
}

void SettingsWindow::restoreFrame() {
    window_->layout()->menuBar()->ensurePolished();
    const QSize minimum = window_->minimumSizeHint();
    QRect frame(QPoint(), window_->sizeHint().expandedTo(minimum));
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        frame.moveCenter(screen->availableGeometry().center());
    const auto data = defaults_.data(frameKey);
    const auto saved = data ? WindowFrame::decoded(*data) : std::nullopt;
    frame = saved ? WindowFrame::inReach(*saved, availableScreens(), minimum)
                  : WindowFrame::onScreen(frame, availableScreens(), minimum);
    window_->resize(frame.size());
    window_->move(frame.topLeft());
}

void SettingsWindow::saveFrame() {
    saveTimer_.stop();
    if (window_ && !window_->isMaximized() && !window_->isFullScreen())
        defaults_.setData(frameKey, WindowFrame::encoded({window_->pos(), window_->size()}));
}

void SettingsWindow::close() {
    if (window_)
        window_->close();
}

void SettingsWindow::windowWillClose() {
    if (!window_)
        return;
    saveFrame();
    // The event that brought us here belongs to the window: it goes in the next turn.
    QWidget* closed = window_.release();
    connect(closed, &QObject::destroyed, qApp, [] {
        Log::writeDiagnostic(u"🗑️ SettingsWindow released"_s);
        QPixmapCache::clear();
        // The program goes on for weeks; what the window took is given back, once all is freed.
        QMetaObject::invokeMethod(
            qApp, [] { malloc_trim(0); }, Qt::QueuedConnection);
    });
    closed->hide();
    closed->deleteLater();
}

void SettingsWindow::showAboutPanel() {
    show();
    if (window_->findChild<AboutView*>())
        return;
    Sheet::present(*window_, std::make_unique<AboutView>(services_().infoDictionary));
}

} // namespace velmora
