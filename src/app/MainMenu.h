#pragma once

#include "viewkit/MenuModel.h"

#include <QList>

namespace velmora {

/// The application's menu bar: the untitled application menu and "Edit".
QList<MenuModel> mainMenu();

} // namespace velmora
