#include "viewkit/PopupMenu.h"

#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

PopupMenu::KeyFilter& keyFilter() {
    static PopupMenu::KeyFilter filter;
    return filter;
}

QString sheetFor(bool dark) {
    const QString sheet = uR"(
        QMenu { background: %1; color: %2; border: 1px solid %3; padding: 4px; }
        QMenu::item { padding: 5px 14px 5px 12px; border-radius: 4px; }
        QMenu::item:selected { background: %4; color: white; }
        QMenu::item:disabled { color: %5; }
        QMenu::separator { height: 1px; background: %3; margin: 4px 8px; }
    )"_s;
    const QString accent = Theme::accent(dark).name();
    return dark ? sheet.arg(u"#26262b"_s, u"#f2f2f4"_s, u"#45454d"_s, accent, u"#8a8a92"_s)
                : sheet.arg(u"#fafafb"_s, u"#1c1c1f"_s, u"#d3d3d9"_s, accent, u"#8f8f97"_s);
}

} // namespace

PopupMenu::PopupMenu(QWidget* opener) : QMenu(opener ? opener->window() : nullptr) {
    // The click that closes a menu must not press what lies beneath: on the button that opened the
    // menu it would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setFont(Theme::systemFont(13));
    connect(this, &QMenu::aboutToShow, this, &PopupMenu::applyStyle);
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
    applyStyle();
    ensurePolished();
    const QList<QAction*> items = actions();
    popup(items.isEmpty() ? point : point - actionGeometry(items.first()).topLeft());
}

void PopupMenu::setKeyFilter(KeyFilter filter) {
    keyFilter() = std::move(filter);
}

bool PopupMenu::filter(const QKeyEvent& event) {
    return keyFilter() && keyFilter()(event);
}

void PopupMenu::keyPressEvent(QKeyEvent* event) {
    if (filter(*event))
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

bool PopupMenu::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && isVisible())
        applyStyle();
    return QMenu::event(event);
}

void PopupMenu::applyStyle() {
    const QString sheet = sheetFor(WindowTheme::colorScheme() == ColorScheme::dark);
    if (sheet != styleSheet())
        setStyleSheet(sheet);
}

} // namespace velmora
