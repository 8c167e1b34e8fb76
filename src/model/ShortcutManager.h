#pragma once

#include "model/ShortcutButton.h"
#include "model/StoredList.h"

#include <QObject>

namespace velmora {

/// The ordered list of bar buttons, kept in the user defaults and observable. Main thread only.
/// Every successful operation changes the list and then saves it, and can be undone through the
/// history; an index or offset out of range changes nothing and saves nothing.
class ShortcutManager : public QObject {
    Q_OBJECT
public:
    /// The process-wide list over the standard user defaults, made on first use, never destroyed.
    static ShortcutManager& shared();

    /// Loads the stored list; without a usable one, creates and saves the four defaults. Both
    /// arguments outlive the list.
    ShortcutManager(UserDefaults& defaults, EditHistory& history);

    const QString userDefaultsKey;

    /// The buttons in display order.
    const QList<ShortcutButton>& shortcuts() const { return shortcuts_.records(); }

    /// Appends.
    void addShortcut(const ShortcutButton& button);
    void removeShortcut(qsizetype index);
    /// Replaces the button at `index`, its id included.
    void updateShortcut(qsizetype index, const ShortcutButton& button);
    /// Moves one button to immediately before the one at `destination`, an offset into the list as
    /// it stands before the move, up to the list's length. Announced as two changes, saved once.
    void moveShortcut(qsizetype source, qsizetype destination);
    /// Takes other buttons in place of all; `name` says why in the history.
    void replaceShortcuts(const QList<ShortcutButton>& buttons, const QString& name);
    /// Writes the whole list to the user defaults.
    void saveShortcuts();

Q_SIGNALS:
    /// Emitted synchronously before each change of the list.
    void shortcutsWillChange();

private:
    void createDefaultShortcuts();

    StoredList<ShortcutButton> shortcuts_;
};

} // namespace velmora
