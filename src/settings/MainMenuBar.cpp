#include "settings/MainMenuBar.h"

#include "foundation/ActionMessages.h"
#include "foundation/LocalizedString.h"
#include "model/EditHistory.h"
#include "viewkit/PopupMenu.h"
#include "viewkit/TwoLineRow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The messages of editing. A text field's operations have their names without the colon; both
/// kinds of field name theirs alike.
bool isEditing(const QString& message) {
    static const QStringList messages{u"undo:"_s, u"redo:"_s,  u"cut:"_s,
                                      u"copy:"_s, u"paste:"_s, u"selectAll:"_s};
    return messages.contains(message);
}

/// The text field with the keyboard focus, if any.
QWidget* focusedField() {
    QWidget* focused = QApplication::focusWidget();
    const bool isField =
        qobject_cast<QLineEdit*>(focused) || qobject_cast<QPlainTextEdit*>(focused);
    return isField ? focused : nullptr;
}

QString literal(QString title) {
    return title.replace(u'&', u"&&"_s);
}

} // namespace

MainMenuBar::MainMenuBar(const QList<MenuModel>& menus, EditHistory& history) : history_(history) {
    // In the window, where its shortcuts belong, also on desktops that have a place for menus.
    setNativeMenuBar(false);
    setAccessibleName(u"Velmora"_s);
    for (const MenuModel& model : menus) {
        // The application's own menu has no title; the program's name stands for it.
        const QString title = model.title.isEmpty() ? u"Velmora"_s : model.title;
        auto* menu = new PopupMenu(this);
        menu->setTitle(literal(title));
        addMenu(menu);
        menu->setAccessibleName(title);
        addEntries(*menu, model.entries);
    }
    auto* open = new QShortcut(Qt::Key_F10, this);
    open->setAutoRepeat(false);
    connect(open, &QShortcut::activated, this, [this] { setActiveAction(actions().value(0)); });
}

void MainMenuBar::addEntries(PopupMenu& menu, const QList<MenuEntry>& entries) {
    for (const MenuEntry& entry : entries) {
        if (entry.isSeparator()) {
            menu.addSeparator();
            continue;
        }
        if (isEditing(entry.actionMessage))
            addEditing(menu, entry);
        else
            commands_.append(
                menu.addItem(entry.title, entry.keyEquivalent, [message = entry.actionMessage] {
                    ActionMessages::shared().send(message);
                }));
    }
}

void MainMenuBar::addEditing(PopupMenu& menu, const MenuEntry& entry) {
    const bool isUndo = entry.actionMessage == "undo:"_L1;
    const bool isRedo = entry.actionMessage == "redo:"_L1;
    QAction* action = menu.addItem(
        entry.title, entry.keyEquivalent,
        [this, isUndo, isRedo, operation = entry.actionMessage.chopped(1).toLatin1()] {
            if (QWidget* field = focusedField())
                QMetaObject::invokeMethod(field, operation.constData());
            else if (isUndo)
                history_.undo();
            else if (isRedo)
                history_.redo();
        });
    // Off only while the menu is open, so that the key equivalent always reaches the field.
    connect(&menu, &QMenu::aboutToShow, action, [=, this, title = entry.title] {
        const QString step = focusedField() ? QString()
                             : isUndo       ? history_.undoName()
                             : isRedo       ? history_.redoName()
                                            : QString();
        action->setEnabled(focusedField() || !step.isEmpty());
        action->setText(step.isEmpty() ? title : literal(stepTitle(isUndo, step)));
    });
    connect(&menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
}

QString MainMenuBar::stepTitle(bool isUndo, const QString& step) const {
    constexpr int widest = 400; // points: a button's title may be a page
    return (isUndo ? localizedString("menu_undo_format") : localizedString("menu_redo_format"))
        .arg(fontMetrics().elidedText(singleLine(step), Qt::ElideMiddle, widest));
}

} // namespace velmora
