#pragma once

#include <QIcon>
#include <QString>

namespace velmora {

/// `name` from Symbols as an icon in the colour that text has where it is drawn; it follows a
/// change of the colour scheme. In a box wider than high it stands at the left; an unknown name
/// draws nothing.
QIcon symbolIcon(const QString& name);

} // namespace velmora
