#pragma once

#include "viewkit/MenuModel.h"

#include <QMenuBar>

namespace velmora {

class EditHistory;
class PopupMenu;

/// The application's main menu as a window's menu bar. Messages of editing ("copy:", …) act on the
/// field with the keyboard focus and are off while there is none; "undo:" and "redo:" act on the
/// lists then, and say what they would do. All others are sent as action messages. F10 opens it
/// from the keyboard; Alt alone, the hot key's modifier, does not.
class MainMenuBar : public QMenuBar {
    Q_OBJECT
public:
    /// `history` outlives the menu bar.
    MainMenuBar(const QList<MenuModel>& menus, EditHistory& history);

    /// The entries whose key equivalents act everywhere in the window: all but those of editing.
    const QList<QAction*>& commands() const { return commands_; }

private:
    void addEntries(PopupMenu& menu, const QList<MenuEntry>& entries);
    void addEditing(PopupMenu& menu, const MenuEntry& entry);
    /// What the entry says that undoes the edit `step`, or does it again.
    QString stepTitle(bool isUndo, const QString& step) const;

    EditHistory& history_;
    QList<QAction*> commands_;
};

} // namespace velmora
