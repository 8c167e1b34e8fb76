#pragma once

#include "overlay/ButtonRow.h"

#include <QWidget>

namespace velmora {

/// One way to arrange the buttons in the bar.
class BarLayout : public QWidget {
public:
    BarLayout(ExecuteAction action, QWidget* parent)
        : QWidget(parent), execute(std::move(action)) {}

    /// Shows the buttons, given in store order.
    virtual void setShortcuts(const QList<ShortcutButton>& shortcuts) = 0;

    static constexpr int verticalPadding = 4;
    static constexpr int trailingPadding = 12;

protected:
    /// Those of `shortcuts` that belong to `side`, in their order.
    static QList<ShortcutButton> group(QList<ShortcutButton> shortcuts, ButtonAlignment side) {
        shortcuts.removeIf(
            [side](const ShortcutButton& button) { return button.alignment != side; });
        return shortcuts;
    }

    const ExecuteAction execute;
};

} // namespace velmora
