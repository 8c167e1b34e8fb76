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

    /// Side of the drawn cell, and what the widget adds on each side for the focus ring.
    static constexpr int cellSide = 50;
    static constexpr int ringMargin = 4;

    const QString& icon() const { return icon_; }
    bool isSelected() const { return isChecked(); }

    QString help() const override { return icon_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// The mark says what is chosen, not what was clicked.
    void nextCheckState() override {}

private:
    QString icon_;
};

} // namespace velmora
