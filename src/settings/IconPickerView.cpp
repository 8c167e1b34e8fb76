#include "settings/IconPickerView.h"

#include "foundation/LocalizedString.h"
#include "settings/IconButton.h"
#include "viewkit/FormParts.h"
#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <optional>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr QSize contentSize(500, 400);
constexpr int columns = 6;
constexpr int cellSpacing = 10;

/// Where `key` leads from `index` among `count` cells; nothing when it is no key of the grid. Left
/// and right run on over the ends of rows, up and down stay in the column as far as there is one.
std::optional<qsizetype> target(int key, qsizetype index, qsizetype count) {
    const qsizetype last = count - 1;
    switch (key) {
    case Qt::Key_Left:
        return qMax<qsizetype>(index - 1, 0);
    case Qt::Key_Right:
        return qMin(index + 1, last);
    case Qt::Key_Up:
        return index < columns ? index : index - columns;
    case Qt::Key_Down:
        return index / columns == last / columns ? index : qMin(index + columns, last);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return {};
    }
}

} // namespace

const QStringList IconPickerView::commonIcons =
    QString(u"safari mail calendar photo music.note tv appwindow.swiftui app.badge app.gift folder "
            u"folder.fill doc doc.text trash archivebox tray paperplane globe network wifi "
            u"antenna.radiowaves.left.and.right gearshape wrench hammer slider.horizontal.3 "
            u"paintbrush pencil pencil.tip.crop.circle camera video mic headphones speaker.wave.2 "
            u"play.circle pause.circle stop.circle phone message envelope bubble.left "
            u"paperplane.fill power lock key shield bell arrow.right arrow.down "
            u"arrow.up.arrow.down arrow.clockwise location map car star heart flag bookmark tag "
            u"house building cart creditcard square.and.arrow.up square.and.arrow.down "
            u"square.and.pencil scissors doc.on.clipboard chart.bar chart.pie "
            u"chart.line.uptrend.xyaxis calendar.badge.clock clock timer cloud sun.max moon drop "
            u"flame bolt sparkles lassoaura cpu"_s)
        .split(u' ');

IconPickerView::IconPickerView(
    const QString& selectedIcon, std::function<void(const QString&)> onPick) {
    const QString title = localizedString("picker_icon_title");
    setWindowTitle(title);
    setFixedSize(contentSize);

    scrollArea_ = scrollArea(makeGrid(selectedIcon, std::move(onPick)), title);
    scrollArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(sheetHeader(title, localizedString("button_close"), *this));
    stack->addWidget(divider());
    stack->addWidget(scrollArea_, 1);
}

QWidget*
IconPickerView::makeGrid(const QString& selectedIcon, std::function<void(const QString&)> onPick) {
    auto* grid = new QWidget;
    auto* layout = new QGridLayout(grid);
    constexpr int margin = Theme::defaultPadding - IconButton::ringMargin;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(cellSpacing - 2 * IconButton::ringMargin);
    for (const QString& name : commonIcons) {
        const int index = int(cells_.size());
        auto* cell = new IconButton(name, name == selectedIcon, [this, name, onPick] {
            onPick(name);
            Sheet::dismiss(*this);
        });
        cell->setFocusPolicy(Qt::ClickFocus);
        cell->installEventFilter(this);
        layout->addWidget(cell, index / columns, index % columns, Qt::AlignCenter);
        layout->setColumnStretch(index % columns, 1);
        cells_.append(cell);
    }
    makeTabStop(*cells_[qMax(commonIcons.indexOf(selectedIcon), 0)]);
    return grid;
}

void IconPickerView::makeTabStop(IconButton& cell) {
    if (QWidget* before = focusProxy())
        before->setFocusPolicy(Qt::ClickFocus);
    cell.setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(&cell);
}

bool IconPickerView::eventFilter(QObject* watched, QEvent* event) {
    auto& cell = static_cast<IconButton&>(*watched);
    if (event->type() == QEvent::FocusIn) {
        makeTabStop(cell);
        scrollArea_->ensureWidgetVisible(&cell, 0, Theme::defaultPadding);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (const auto index = target(key, cells_.indexOf(&cell), cells_.size())) {
            cells_[*index]->setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace velmora
