#pragma once

#include "settings/SettingsView.h"
#include "viewkit/MenuModel.h"

#include <QList>
#include <QTimer>
#include <memory>

namespace velmora {

class UserDefaults;
class WindowActivation;

/// The settings window: made when it is shown, dropped when it closes. Main thread only.
class SettingsWindow : public QObject {
    Q_OBJECT
public:
    /// The process-wide instance over the current platform and the shared stores, made on first
    /// use, never destroyed.
    static SettingsWindow& shared();

    /// `services` is asked once for each window. The others outlive the object.
    SettingsWindow(
        UserDefaults& defaults, WindowActivation& activation,
        std::function<SettingsServices()> services);
    ~SettingsWindow() override;

    /// The menu bar of windows made from now on.
    void setMainMenu(QList<MenuModel> menus) { mainMenu_ = std::move(menus); }

    /// Shows the window in front of all others, or brings it forward as it is.
    void show();
    /// Closes the window if there is one, and forgets it.
    void close();
    /// Shows the About panel, in the settings window.
    void showAboutPanel();

    /// The window while there is one.
    QWidget* window() const { return window_.get(); }

private:
    class Window;

    void makeWindow();
    /// Puts the window where it was last, else in the middle of the screen, in reach in any case.
    void restoreFrame(SettingsView& view, int barHeight);
    void saveFrame();
    void windowWillClose();

    UserDefaults& defaults_;
    WindowActivation& activation_;
    const std::function<SettingsServices()> services_;
    QList<MenuModel> mainMenu_;
    std::unique_ptr<QWidget> window_;
    QTimer saveTimer_; ///< runs while a frame is to be saved
};

} // namespace velmora
