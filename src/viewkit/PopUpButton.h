#pragma once

#include <QPushButton>
#include <QVariant>

namespace velmora {

class PopupMenu;

/// A button that shows one of several items and opens a menu of them. The choice changes only in
/// the menu: neither the wheel nor a key passes through the items.
class PopUpButton : public QPushButton {
    Q_OBJECT
public:
    /// `name` is what assistive programs call it.
    explicit PopUpButton(const QString& name);

    /// Appends an item; the first one is chosen until another is.
    void addItem(const QString& title, const QVariant& value = {});
    int count() const;

    int currentIndex() const { return currentIndex_; }
    void setCurrentIndex(int index);
    QVariant currentData() const;
    /// The first item with `value`; -1 for none.
    int findData(const QVariant& value) const;

    /// As wide as the widest item needs.
    QSize sizeHint() const override;

Q_SIGNALS:
    void currentIndexChanged(int index);

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openMenu();

    PopupMenu* const items_;
    int currentIndex_ = -1;
};

} // namespace velmora
