#include "viewkit/PopUpButton.h"

#include "viewkit/PopupMenu.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <algorithm>

namespace velmora {

PopUpButton::PopUpButton(const QString& name) : items_(new PopupMenu(this)) {
    setAccessibleName(name);
    setAutoDefault(false);
    items_->setAccessibleName(name);
    // Not setMenu(), which opens it in an event loop of its own.
    connect(this, &QPushButton::pressed, this, &PopUpButton::openMenu);
    connect(items_, &QMenu::aboutToHide, this, [this] { setDown(false); });
}

void PopUpButton::openMenu() {
    items_->setMinimumWidth(width());
    const QPoint below = isRightToLeft() ? QPoint(width() - items_->sizeHint().width(), height())
                                         : QPoint(0, height());
    items_->popup(mapToGlobal(below));
    items_->setActiveAction(items_->actions().value(currentIndex_));
}

void PopUpButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->features |= QStyleOptionButton::HasMenu;
}

void PopUpButton::addItem(const QString& title, const QVariant& value) {
    const int index = count();
    QAction* item = items_->addItem(title, {}, [this, index] { setCurrentIndex(index); });
    item->setCheckable(true);
    item->setData(value);
    updateGeometry();
    if (currentIndex_ < 0)
        setCurrentIndex(index);
}

int PopUpButton::count() const {
    return int(items_->actions().size());
}

void PopUpButton::setCurrentIndex(int index) {
    const QList<QAction*> items = items_->actions();
    for (int i = 0; i < items.size(); ++i)
        items[i]->setChecked(i == index);
    if (std::exchange(currentIndex_, index) == index)
        return;
    setText(items[index]->text());
    setAccessibleDescription(items[index]->iconText());
    Q_EMIT currentIndexChanged(index);
}

QVariant PopUpButton::currentData() const {
    return items_->actions().at(currentIndex_)->data();
}

int PopUpButton::findData(const QVariant& value) const {
    const QList<QAction*> items = items_->actions();
    const auto found = std::ranges::find(items, value, &QAction::data);
    return found == items.end() ? -1 : int(found - items.begin());
}

QSize PopUpButton::sizeHint() const {
    int widest = 0;
    for (const QAction* item : items_->actions())
        widest = qMax(widest, fontMetrics().horizontalAdvance(item->text()));
    const QSize size = QPushButton::sizeHint();
    return size + QSize(widest - fontMetrics().horizontalAdvance(text()), 0);
}

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        openMenu();
        break;
    default:
        QPushButton::keyPressEvent(event);
    }
}

} // namespace velmora
