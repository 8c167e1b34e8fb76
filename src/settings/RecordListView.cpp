#include "settings/RecordListView.h"

#include "foundation/LocalizedString.h"
#include "settings/RecordListModel.h"
#include "settings/RecordRowDelegate.h"
#include "viewkit/FormParts.h"
#include "viewkit/PopupMenu.h"
#include "viewkit/WindowTheme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace velmora {
namespace {

constexpr int padding = 3; ///< between frame and rows
/// While a row is dragged this close to an edge, the list scrolls.
constexpr int scrollZone = 20;
constexpr int scrollInterval = 16; // milliseconds
constexpr int scrollStep = 6;

bool movesThroughRows(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

} // namespace

RecordListView::RecordListView(RecordListModel& model)
    : delegate_(new RecordRowDelegate(model, this)) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setViewportMargins(padding, padding, padding, padding);
    setModel(&model);
    setItemDelegate(delegate_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListView::doubleClicked, this, [this](const QModelIndex& index) {
        Q_EMIT editRequested(index.row());
    });
}

int RecordListView::selectedRow() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void RecordListView::mousePressEvent(QMouseEvent* event) {
    // A right click opens the row's menu and leaves the selection alone.
    if (event->button() != Qt::LeftButton)
        return;
    pressPoint_ = event->position().toPoint();
    pressed_ = indexAt(pressPoint_);
    QListView::mousePressEvent(event);
}

void RecordListView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        QListView::mouseDoubleClickEvent(event);
}

void RecordListView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        QListView::mouseMoveEvent(event);
        return;
    }
    const QPoint place = event->position().toPoint();
    if (!drag_ && isReorderable_ && pressed_.isValid() &&
        (place - pressPoint_).manhattanLength() >= QApplication::startDragDistance()) {
        drag_ = Drag{.source = pressed_, .pointerY = place.y()};
        delegate_->setDraggedIndex(pressed_);
        setCursor(Qt::ClosedHandCursor);
    }
    if (drag_)
        dragTo(place.y());
}

void RecordListView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (!drag_) {
        if (pressed_.isValid()) // else the press was on no row, or its drag was called off
            QListView::mouseReleaseEvent(event);
        return;
    }
    const int source = drag_->source.row();
    const int destination = dropOffset();
    endDrag();
    if (source >= 0 && destination != source && destination != source + 1)
        Q_EMIT moveRequested(source, destination);
}

int RecordListView::dropOffset() const {
    const int height = RecordRowDelegate::rowHeight();
    const int y = drag_->pointerY + verticalOffset();
    return qBound(0, (y + height / 2) / height, model()->rowCount());
}

void RecordListView::dragTo(int y) {
    drag_->pointerY = y;
    if (y < scrollZone || y > viewport()->height() - scrollZone)
        scrollTimer_.start(scrollInterval, this);
    else
        scrollTimer_.stop();
    viewport()->update();
}

void RecordListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != scrollTimer_.timerId()) {
        QListView::timerEvent(event);
        return;
    }
    const int step = drag_ && drag_->pointerY < scrollZone ? -scrollStep : scrollStep;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + step);
    viewport()->update();
}

void RecordListView::endDrag() {
    drag_.reset();
    pressed_ = QPersistentModelIndex();
    scrollTimer_.stop();
    delegate_->setDraggedIndex({});
    unsetCursor();
    setState(NoState);
    viewport()->update();
}

void RecordListView::focusOutEvent(QFocusEvent* event) {
    if (drag_)
        endDrag();
    QListView::focusOutEvent(event);
}

void RecordListView::keyPressEvent(QKeyEvent* event) {
    const int row = selectedRow();
    const int key = event->key();
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isMove = isReorderable_ && (key == Qt::Key_Up || key == Qt::Key_Down) &&
                        (event->modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
    if (drag_) {
        if (key == Qt::Key_Escape)
            endDrag();
    } else if (isMove) {
        if (key == Qt::Key_Up && row > 0)
            Q_EMIT moveRequested(row, row - 1);
        else if (key == Qt::Key_Down && row >= 0 && row + 1 < model()->rowCount())
            Q_EMIT moveRequested(row, row + 2);
    } else if (isPlain && key == Qt::Key_Delete) {
        Q_EMIT deleteSelectedRequested();
    } else if (isPlain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2)) {
        if (row >= 0)
            Q_EMIT editRequested(row);
    } else if (isPlain && row < 0 && movesThroughRows(key)) {
        // None is selected: the arrows start where the ring is.
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            QListView::keyPressEvent(event);
        setCurrentIndex(currentIndex().isValid() ? currentIndex() : model()->index(0, 0));
    } else {
        QListView::keyPressEvent(event);
    }
}

void RecordListView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QPersistentModelIndex index = byKeyboard ? currentIndex() : indexAt(event->pos());
    if (!index.isValid() || drag_)
        return;
    const QPoint place =
        byKeyboard ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos();
    auto* menu = new PopupMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(index.data().toString());
    menu->addItem(localizedString("shortcut_edit"), {}, [this, index] {
        if (index.isValid())
            Q_EMIT editRequested(index.row());
    });
    menu->addItem(localizedString("shortcut_delete"), {}, [this, index] {
        if (index.isValid())
            Q_EMIT deleteRequested(index.row());
    });
    delegate_->setMenuIndex(index);
    connect(menu, &QMenu::aboutToHide, this, [this] {
        delegate_->setMenuIndex({});
        viewport()->update();
    });
    viewport()->update();
    menu->popUp(place);
}

void RecordListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    paintEmptyHint(*this, localizedString("list_empty"));
    if (!drag_)
        return;
    constexpr double knob = 3;
    const double y = qBound(
        1, dropOffset() * RecordRowDelegate::rowHeight() - verticalOffset(),
        viewport()->height() - 1);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(WindowTheme::colors().accent, 2));
    painter.drawLine(QPointF(2 * knob + 2, y), QPointF(viewport()->width() - 4, y));
    painter.drawEllipse(QPointF(knob + 2, qMax(y, knob + 1)), knob, knob);
}

} // namespace velmora
