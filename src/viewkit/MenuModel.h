#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

namespace velmora {

/// One entry of a menu; an entry without a title is a separator.
struct MenuEntry {
    QString title;
    /// The action message it sends, answered by the first responder that handles it.
    QString actionMessage;
    /// Acts with the default modifier, Ctrl on this platform; empty for none.
    QKeySequence keyEquivalent;

    bool isSeparator() const { return title.isEmpty(); }
};

/// A menu of the menu bar.
struct MenuModel {
    QString title;
    QList<MenuEntry> entries;
};

} // namespace velmora
