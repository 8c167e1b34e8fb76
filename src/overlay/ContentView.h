#pragma once

#include "overlay/BarLayout.h"

namespace velmora {

class ShortcutManager;

/// The bar's root view: a dark ground and, on it, the store's buttons in the layout that suits the
/// screen. Follows every change of the store in the next turn of the event loop; the layout is
/// chosen anew each time.
class ContentView : public QWidget {
    Q_OBJECT
public:
    /// `shortcutManager` must outlive the view. `hasNotch` tells how the screen is now.
    ContentView(
        ShortcutManager& shortcutManager, std::function<bool()> hasNotch, ExecuteAction execute,
        QWidget* parent = nullptr);

    /// Takes in at once how the screen is now.
    void followScreen() { rebuild(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void scheduleRebuild();
    void rebuild();

    ShortcutManager& shortcutManager_;
    const std::function<bool()> hasNotch_;
    const ExecuteAction execute_;
    BarLayout* layout_ = nullptr;
    bool layoutHasNotch_ = false;
    bool isRebuildScheduled_ = false;
};

} // namespace velmora
