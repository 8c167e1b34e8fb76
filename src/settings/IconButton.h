#pragma once

#include "viewkit/PlainButton.h"

#include <functional>

namespace velmora {

/// One cell of the symbol chooser.
class IconButton : public PlainButton {
    Q_OBJECT
public:
    /// `action` runs on a click; it may destroy the button's sheet in a later turn.
    IconButton(const QString& icon, bool isSelected, std::function<void()> action);

    /// What the widget adds to each side of the drawn cell, for the focus ring.
    static constexpr int ringMargin = 4;

    bool isSelected() const { return isChecked(); }

    QString help() const override { return icon_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// The mark says what is chosen, not what was clicked.
    void nextCheckState() override {}

private:
    QString icon_;
};

} // namespace velmora
