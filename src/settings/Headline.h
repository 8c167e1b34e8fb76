#pragma once

#include <QString>

class QLabel;

namespace velmora {

/// A label in the headline font.
QLabel* headline(const QString& text);

} // namespace velmora
