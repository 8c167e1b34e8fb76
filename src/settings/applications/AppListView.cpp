#include "settings/applications/AppListView.h"

#include "foundation/LocalizedString.h"
#include "settings/applications/AppListModel.h"
#include "viewkit/FormParts.h"
#include "viewkit/Rounded.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"
#include "viewkit/TwoLineRow.h"
#include "viewkit/WindowTheme.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

constexpr int listPadding = 4; ///< above the first row and below the last
constexpr int rowSpacing = 2;
constexpr int rowMargin = 8; ///< beside a row's box
constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 8;
constexpr int textSpacing = 12; ///< between picture, texts and mark
constexpr int fallbackSymbolSize = 24;
constexpr int checkmarkSize = 13;
/// How long looking up icons may hold the main thread before it lets events in.
constexpr int sliceMilliseconds = 5;

int rowHeight() {
    return TwoLineRow::contentHeight(AppIcons::side) + 2 * verticalPadding + rowSpacing;
}

QSize square(int side) {
    return {side, side};
}

} // namespace

class AppListView::Delegate : public QStyledItemDelegate {
public:
    explicit Delegate(const AppListView& view) : view_(view) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override {
        painter->save();
        const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
        const bool current = index == view_.currentIndex();
        if (const AppInfo* app = view_.model_.app(index)) {
            const QRect box =
                option.rect.adjusted(rowMargin, rowSpacing / 2, -rowMargin, -rowSpacing / 2);
            paintApp(*painter, box, option.direction, *app, hovered, current);
        } else {
            paintButton(*painter, option, index.data().toString(), hovered, current);
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {AppIcons::side, rowHeight()};
    }

private:
    void paintApp(
        QPainter& painter, const QRect& box, Qt::LayoutDirection direction, const AppInfo& app,
        bool hovered, bool current) const {
        const auto& colors = WindowTheme::colors();
        const bool isSelected = view_.model_.isSelected(app);
        Rounded::fill(
            painter, box, Rounded::controlRadius,
            isSelected ? Theme::withOpacity(colors.accent, 0.1F)
                       : Theme::withOpacity(Qt::gray, hovered ? 0.12F : 0));
        if (current)
            Rounded::drawFocusRing(painter, box, Rounded::controlRadius);

        TwoLineRow row(
            box.adjusted(horizontalPadding, 0, -horizontalPadding, 0), direction, AppIcons::side,
            textSpacing);
        const QPixmap icon = view_.icon(app);
        if (icon.isNull()) {
            const int side = Symbols::sideLength(fallbackSymbolSize);
            Symbols::paint(painter, u"app"_s, row.picture(square(side)), colors.text);
        } else {
            // An icon that comes smaller is centred rather than blown up.
            painter.drawPixmap(row.picture(icon.deviceIndependentSize().toSize()), icon);
        }
        if (isSelected) {
            const int side = Symbols::sideLength(checkmarkSize);
            Symbols::paint(
                painter, u"checkmark"_s, row.takeMark(square(side), textSpacing), colors.accent);
        }
        row.paintTexts(painter, app.name, colors.text, app.bundleId, colors.secondaryText);
    }

    void paintButton(
        QPainter& painter, const QStyleOptionViewItem& option, const QString& title, bool hovered,
        bool focused) const {
        const QStyle& style = *view_.style();
        QStyleOptionButton button;
        button.palette = view_.palette();
        button.direction = option.direction;
        button.fontMetrics = QFontMetrics(view_.font());
        button.text = title;
        button.state = QStyle::State_Enabled | QStyle::State_Raised;
        button.state.setFlag(QStyle::State_MouseOver, hovered);
        button.state.setFlag(QStyle::State_HasFocus, focused);
        const QSize text = button.fontMetrics.size(Qt::TextShowMnemonic, title);
        button.rect.setSize(style.sizeFromContents(QStyle::CT_PushButton, &button, text));
        button.rect.moveCenter(option.rect.center());
        painter.setFont(view_.font());
        style.drawControl(QStyle::CE_PushButton, &button, &painter);
    }

    const AppListView& view_;
};

AppListView::AppListView(AppListModel& model) : model_(model) {
    setModel(&model);
    setItemDelegate(new Delegate(*this));
    itemDelegate()->setParent(this);
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(0, listPadding - rowSpacing / 2, 0, listPadding - rowSpacing / 2);
    viewport()->setAutoFillBackground(false);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that rows keep their width
    setSelectionMode(SingleSelection);
    setMouseTracking(true);
    connect(this, &QListView::clicked, this, &AppListView::rowPicked);
    // Queued: picking may change the rows, or close the list.
    connect(
        selectionModel(), &QItemSelectionModel::selectionChanged, this, &AppListView::pickSelected,
        Qt::QueuedConnection);
    connect(&icons_, &AppIcons::loaded, viewport(), qOverload<>(&QWidget::update));
    iconTimer_.setSingleShot(true);
    iconTimer_.setInterval(0ms);
    connect(&iconTimer_, &QTimer::timeout, this, &AppListView::loadSomeIcons);
}

bool AppListView::moveCurrent(int key) {
    const int rows = model_.rowCount();
    const int page = qMax(1, viewport()->height() / rowHeight() - 1);
    int step = 0;
    switch (key) {
    case Qt::Key_Up:
        step = -1;
        break;
    case Qt::Key_Down:
        step = 1;
        break;
    case Qt::Key_PageUp:
        step = -page;
        break;
    case Qt::Key_PageDown:
        step = page;
        break;
    default:
        return false;
    }
    if (rows > 0) {
        // Without a current row the first step leads to the first one.
        const int row = currentIndex().isValid() ? currentIndex().row() + step : 0;
        setCurrentIndex(model_.index(qBound(0, row, rows - 1)));
    }
    return true;
}

void AppListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    const char* hint = !model_.isLoaded()     ? "picker_app_loading"
                       : model_.isSearching() ? "picker_app_no_match"
                                              : "picker_app_none";
    paintEmptyHint(*this, localizedString(hint));
}

void AppListView::pickSelected() {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    clearSelection();
    Q_EMIT rowPicked(selected.first());
}

QPixmap AppListView::icon(const AppInfo& app) const {
    const auto pixmap = icons_.find(app, devicePixelRatioF());
    if (!pixmap)
        iconTimer_.start();
    return pixmap.value_or(QPixmap());
}

void AppListView::loadSomeIcons() {
    QElapsedTimer elapsed;
    elapsed.start();
    const double ratio = devicePixelRatioF();
    const QRect visible = viewport()->rect();
    QModelIndex index = indexAt(QPoint(0, 0));
    for (; index.isValid() && visualRect(index).intersects(visible);
         index = model_.index(index.row() + 1)) {
        const AppInfo* app = model_.app(index);
        if (!app || icons_.find(*app, ratio))
            continue;
        if (elapsed.elapsed() >= sliceMilliseconds) {
            iconTimer_.start();
            return;
        }
        icons_.load(*app, ratio);
    }
}

} // namespace velmora
