#pragma once

#include <QComboBox>

namespace velmora {

/// A button that shows one of several items and opens a menu of them. The choice changes only in
/// the menu: neither the wheel nor a key passes through the items.
class PopUpButton : public QComboBox {
    Q_OBJECT
public:
    /// `name` is what assistive programs call it.
    explicit PopUpButton(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Chooses what an assistive program selected among the items.
    void takeSelection();
};

} // namespace velmora
