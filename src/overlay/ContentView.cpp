#include "overlay/ContentView.h"

#include "model/ShortcutManager.h"
#include "overlay/BarGround.h"
#include "overlay/NotchAwareLayout.h"
#include "overlay/StandardLayout.h"

#include <QLinearGradient>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace velmora {

ContentView::ContentView(
    ShortcutManager& shortcutManager, std::function<bool()> hasNotch, ExecuteAction execute,
    QWidget* parent)
    : QWidget(parent),
      shortcutManager_(shortcutManager),
      hasNotch_(std::move(hasNotch)),
      execute_(std::move(execute)) {
    // Left of the notch is left in every language.
    setLayoutDirection(Qt::LeftToRight);
    setAccessibleName(u"Velmora"_s);
    connect(
        &shortcutManager_, &ShortcutManager::shortcutsWillChange, this,
        &ContentView::scheduleRebuild);
    rebuild();
}

void ContentView::scheduleRebuild() {
    // The signal comes before the change, and a move is two changes: read once, afterwards.
    if (!std::exchange(isRebuildScheduled_, true))
        QMetaObject::invokeMethod(this, &ContentView::rebuild, Qt::QueuedConnection);
}

void ContentView::rebuild() {
    isRebuildScheduled_ = false;
    const bool notch = hasNotch_();
    if (!layout_ || notch != layoutHasNotch_) {
        delete layout_;
        layoutHasNotch_ = notch;
        if (notch)
            layout_ = new NotchAwareLayout(execute_, this);
        else
            layout_ = new StandardLayout(execute_, this);
        layout_->setGeometry(rect());
        layout_->show();
    }
    layout_->setShortcuts(shortcutManager_.shortcuts());
}

void ContentView::paintEvent(QPaintEvent*) {
    QLinearGradient gradient(rect().topLeft(), rect().topRight() + QPoint(1, 0));
    gradient.setColorAt(0, barGround(0));
    gradient.setColorAt(1, barGround(1));
    QPainter(this).fillRect(rect(), gradient);
}

void ContentView::resizeEvent(QResizeEvent*) {
    layout_->setGeometry(rect());
}

void ContentView::showEvent(QShowEvent*) {
    // The panel is never the active window; without this it would have no tool tips.
    window()->setAttribute(Qt::WA_AlwaysShowToolTips);
}

} // namespace velmora
