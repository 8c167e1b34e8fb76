#include "viewkit/PopUpButton.h"

#include "viewkit/PopupMenu.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

namespace velmora {
namespace {

constexpr double chevronInset = 14; ///< its centre from the trailing edge
constexpr double chevronHalfWidth = 3.5;
constexpr double chevronHeight = 3.5;
constexpr double chevronDistance = 2; ///< from the middle line

} // namespace

PopUpButton::PopUpButton(const QString& name) {
    setAccessibleName(name);
    view()->setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    constexpr int everyItem = 32;
    setMaxVisibleItems(everyItem);
    // Queued: the keyboard and the pointer make an item the current one right after selecting it.
    connect(
        view()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &PopUpButton::takeSelection, Qt::QueuedConnection);
    view()->installEventFilter(this);
}

bool PopUpButton::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && PopupMenu::filter(static_cast<QKeyEvent&>(*event)))
        return true;
    // What the pointer was over last would stay selected, and what is selected cannot be selected
    // again. Queued: the choice is still to be read from there.
    if (event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(
            view()->selectionModel(), &QItemSelectionModel::clear, Qt::QueuedConnection);
    return QComboBox::eventFilter(watched, event);
}

void PopUpButton::takeSelection() {
    const QModelIndexList selected = view()->selectionModel()->selectedIndexes();
    if (selected.isEmpty() || selected.first() == view()->currentIndex())
        return;
    setCurrentIndex(selected.first().row());
    hidePopup();
    view()->selectionModel()->clear();
}

void PopUpButton::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(
        palette().color(QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double x = isRightToLeft() ? chevronInset : width() - chevronInset;
    const double middle = height() / 2.0;
    for (const int direction : {-1, 1}) {
        const double base = middle + direction * chevronDistance;
        QPainterPath chevron(QPointF(x - chevronHalfWidth, base));
        chevron.lineTo(x, base + direction * chevronHeight);
        chevron.lineTo(x + chevronHalfWidth, base);
        painter.drawPath(chevron);
    }
}

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space:
        showPopup();
        break;
    default:
        if (event->text().isEmpty())
            QComboBox::keyPressEvent(event);
        else
            event->ignore(); // a letter would choose an item
    }
}

void PopUpButton::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace velmora
