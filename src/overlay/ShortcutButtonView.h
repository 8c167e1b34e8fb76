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

    /// Width in points of the title as it stands; 4096 at most, longer ones end in an ellipsis.
    int titleWidth() const { return titleWidth_; }
    /// Gives the title at most `limit` points of width; it ends in an ellipsis if it needs more.
    void setTitleWidthLimit(int limit);

    /// Width in points that the label asks for with its title unshortened.
    int naturalWidth() const { return labelWidth(titleWidth_); }
    /// The size that the label asks for. The height is the same for every button.
    QSize sizeHint() const override;
    QString help() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void measure();
    int labelWidth(int titleWidth) const;
    int shownTitleWidth() const { return std::min(titleWidth_, titleWidthLimit_); }

    ShortcutButton shortcut_;
    QString title_; ///< in one line
    int titleWidth_ = 0;
    int titleWidthLimit_;
    bool hasSymbol_ = false;
};

} // namespace velmora
