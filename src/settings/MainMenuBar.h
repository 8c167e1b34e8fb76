#pragma once

#include "viewkit/MenuModel.h"

#include <QMenuBar>

namespace velmora {

/// The application's main menu as a window's menu bar. Messages of editing ("copy:", …) act on the
/// field with the keyboard focus and are off while there is none; all others are sent as action
/// messages.
class MainMenuBar : public QMenuBar {
    Q_OBJECT
public:
    explicit MainMenuBar(const QList<MenuModel>& menus, QWidget* parent = nullptr);

private:
    void addEntries(QMenu& menu, const QList<MenuEntry>& entries);
};

} // namespace velmora
