#include "settings/MainMenuBar.h"

#include "foundation/ActionMessages.h"
#include "viewkit/PopupMenu.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The operation of a text field that answers an editing message; empty for other messages. Both
/// kinds of field name theirs alike.
QByteArray editOperation(const QString& message) {
    static const QStringList messages{u"undo:"_s, u"redo:"_s,  u"cut:"_s,
                                      u"copy:"_s, u"paste:"_s, u"selectAll:"_s};
    return messages.contains(message) ? message.chopped(1).toLatin1() : QByteArray();
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

MainMenuBar::MainMenuBar(const QList<MenuModel>& menus) {
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
        const QByteArray operation = editOperation(entry.actionMessage);
        if (operation.isEmpty()) {
            commands_.append(
                menu.addItem(entry.title, entry.keyEquivalent, [message = entry.actionMessage] {
                    ActionMessages::shared().send(message);
                }));
            continue;
        }
        QAction* action = menu.addItem(entry.title, entry.keyEquivalent, [operation] {
            if (QWidget* field = focusedField())
                QMetaObject::invokeMethod(field, operation.constData());
        });
        // Off only while the menu is open, so that the key equivalent always reaches the field.
        connect(&menu, &QMenu::aboutToShow, action, [action] {
            action->setEnabled(focusedField() != nullptr);
        });
        connect(&menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
    }
}

} // namespace velmora
