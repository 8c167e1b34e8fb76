#pragma once

#include "viewkit/MenuModel.h"

#include <QMenuBar>

namespace velmora {

class PopupMenu;

/// The application's main menu as a window's menu bar. Messages of editing ("copy:", …) act on the
/// field with the keyboard focus and are off while there is none; all others are sent as action
/// messages. F10 opens it from the keyboard; Alt alone, the hot key's modifier, does not.
class MainMenuBar : public QMenuBar {
    Q_OBJECT
public:
    explicit MainMenuBar(const QList<MenuModel>& menus);

    /// The entries whose key equivalents act everywhere in the window: all but those of editing.
    const QList<QAction*>& commands() const { return commands_; }

private:
    void addEntries(PopupMenu& menu, const QList<MenuEntry>& entries);

    QList<QAction*> commands_;
};

} // namespace velmora
