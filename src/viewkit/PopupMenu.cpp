#include "viewkit/PopupMenu.h"

#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

PopupMenu::KeyFilter& keyFilter() {
    static PopupMenu::KeyFilter filter;
    return filter;
}

} // namespace

PopupMenu::PopupMenu(QWidget* opener) : QMenu(opener ? opener->window() : nullptr) {
    // The click that closes a menu must not press what lies beneath: on the button that opened the
    // menu it would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setFont(Theme::systemFont(WindowTheme::fontSize));
    connect(this, &QMenu::aboutToShow, &WindowTheme::prepare);
}

QAction* PopupMenu::addItem(
    const QString& title, const QKeySequence& keyEquivalent, std::function<void()> action) {
    QString literal = title;
    literal.replace(u'&', u"&&"_s);
    QAction* item = addAction(literal);
    item->setShortcut(keyEquivalent);
    item->setAutoRepeat(false);
    item->setShortcutVisibleInContextMenu(true);
    connect(item, &QAction::triggered, this, std::move(action));
    return item;
}

void PopupMenu::popUp(const QPoint& point) {
    ensurePolished();
    const QList<QAction*> items = actions();
    popup(items.isEmpty() ? point : point - actionGeometry(items.first()).topLeft());
}

void PopupMenu::setKeyFilter(KeyFilter filter) {
    keyFilter() = std::move(filter);
}

void PopupMenu::keyPressEvent(QKeyEvent* event) {
    if (keyFilter() && keyFilter()(*event))
        return;
    const QKeySequence pressed(event->keyCombination());
    const auto answers = [&pressed](const QAction* item) {
        return item->isEnabled() && !item->shortcut().isEmpty() && item->shortcut() == pressed;
    };
    for (QAction* item : actions()) {
        if (!answers(item))
            continue;
        // Chosen as if by Return, which closes the menu in good order first.
        setActiveAction(item);
        QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QMenu::keyPressEvent(&choose);
        return;
    }
    for (QAction* command :
         parentWidget() ? parentWidget()->window()->actions() : QList<QAction*>()) {
        if (!answers(command))
            continue;
        close();
        command->trigger();
        return;
    }
    QMenu::keyPressEvent(event);
}

} // namespace velmora
