#pragma once

#include "model/ShortcutButton.h"
#include "viewkit/PlainButton.h"

namespace velmora {

/// One button of the bar: symbol and title on a rounded ground that lights up under the pointer.
/// A symbol that does not exist and an empty title take no room.
class ShortcutButtonView : public PlainButton {
    Q_OBJECT
public:
    explicit ShortcutButtonView(const ShortcutButton& shortcut, QWidget* parent = nullptr);

    const ShortcutButton& shortcut() const { return shortcut_; }
    /// Shows `shortcut` from now on; nothing happens when every field is as before.
    void setShortcut(const ShortcutButton& shortcut);

    /// The size in points that the label asks for. The height is the same for every button; a title
    /// wider than 4096 ends in an ellipsis.
    QSize sizeHint() const override;
    QString help() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void measure();

    ShortcutButton shortcut_;
    QString title_; ///< in one line
    int titleWidth_ = 0;
    bool hasSymbol_ = false;
};

} // namespace velmora
