#include "overlay/ButtonRow.h"

#include "overlay/MenuButton.h"
#include "overlay/ShortcutButtonView.h"

#include <QHash>
#include <QResizeEvent>
#include <algorithm>
#include <utility>

namespace velmora {

void ButtonRow::setRootView(const RootView& content) {
    if (content.hasMenuButton && !menuButton_) {
        menuButton_ = new MenuButton(this);
        menuButton_->show();
    }
    // Ids may repeat: each view is handed out once.
    QHash<QUuid, QList<ShortcutButtonView*>> known;
    for (ShortcutButtonView* button : std::as_const(buttons_))
        known[button->shortcut().id()].append(button);
    buttons_.clear();
    for (const ShortcutButton& shortcut : content.shortcuts) {
        const auto found = known.find(shortcut.id());
        if (found == known.end() || found->isEmpty()) {
            buttons_.append(makeButton(shortcut, content.execute));
        } else {
            buttons_.append(found->takeFirst());
            buttons_.last()->setShortcut(shortcut);
        }
    }
    for (const QList<ShortcutButtonView*>& gone : std::as_const(known))
        qDeleteAll(gone);
    sortChildren();
    layOut();
}

void ButtonRow::sortChildren() {
    const qsizetype first = menuButton_ ? 1 : 0;
    const auto [wrong, child] = std::mismatch(
        buttons_.cbegin(), buttons_.cend(), children().cbegin() + first, children().cend());
    std::for_each(wrong, buttons_.cend(), [](ShortcutButtonView* button) { button->raise(); });
}

ShortcutButtonView*
ButtonRow::makeButton(const ShortcutButton& shortcut, const ExecuteAction& execute) {
    auto* button = new ShortcutButtonView(shortcut, this);
    connect(button, &ShortcutButtonView::clicked, this, [button, execute] {
        // A copy: the action may outlive the button.
        const ShortcutAction action = button->shortcut().action;
        execute(action);
    });
    button->show();
    return button;
}

void ButtonRow::setDragThreshold(std::optional<double> threshold) {
    if (menuButton_)
        menuButton_->setDragThreshold(threshold);
    for (ShortcutButtonView* button : std::as_const(buttons_))
        button->setDragThreshold(threshold);
}

void ButtonRow::resizeEvent(QResizeEvent* event) {
    if (event->size().height() != event->oldSize().height())
        layOut();
}

void ButtonRow::layOut() {
    int x = 0;
    const auto place = [&](QWidget& view) {
        const QSize size = view.sizeHint();
        view.setGeometry({QPoint(x, (height() - size.height()) / 2), size});
        x += size.width() + spacing;
    };
    if (menuButton_)
        place(*menuButton_);
    for (ShortcutButtonView* button : std::as_const(buttons_))
        place(*button);
    resize(std::max(x - spacing, 0), height());
}

} // namespace velmora
