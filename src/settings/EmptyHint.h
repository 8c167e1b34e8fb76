#pragma once

class QAbstractItemView;
class QString;

namespace velmora {

/// Says `text` in the middle of a list without rows, in the secondary colour; nothing in one with
/// rows. For the list's own paintEvent.
void paintEmptyHint(QAbstractItemView& list, const QString& text);

} // namespace velmora
