#include "settings/applications/SearchField.h"

#include "foundation/LocalizedString.h"
#include "viewkit/PlainButton.h"
#include "viewkit/Rounded.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int padding = 8;

int symbolSide() {
    return Symbols::sideLength(WindowTheme::fontSize);
}

class ClearButton : public PlainButton {
public:
    ClearButton() {
        setFixedSize(symbolSide() + 4, symbolSide() + 4);
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(localizedString("picker_app_clear"));
    }

    QString help() const override { return accessibleName(); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Symbols::paint(
            painter, u"xmark.circle.fill"_s, QRectF(rect()).adjusted(2, 2, -2, -2),
            palette().color(isHovered() ? QPalette::WindowText : QPalette::PlaceholderText));
        if (hasFocus())
            Rounded::drawFocusRing(painter, rect(), width() / 2.0);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            PlainButton::keyPressEvent(event);
    }
};

} // namespace

SearchField::SearchField(const QString& placeholder) : clearButton_(new ClearButton) {
    edit_.setPlaceholderText(placeholder);
    edit_.setAccessibleName(placeholder);
    edit_.setFrame(false);
    edit_.installEventFilter(this);
    setFocusProxy(&edit_);
    clearButton_->hide();
    connect(&edit_, &QLineEdit::textChanged, this, [this](const QString& text) {
        clearButton_->setVisible(!text.isEmpty());
    });
    connect(clearButton_, &PlainButton::clicked, this, [this] {
        edit_.setFocus();
        edit_.clear();
    });

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(
        padding + symbolSide() + Theme::defaultSpacing, padding, padding, padding);
    row->setSpacing(Theme::defaultSpacing);
    row->addWidget(&edit_, 1);
    row->addWidget(clearButton_);
}

void SearchField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Rounded::fill(painter, rect(), Rounded::areaRadius, Theme::withOpacity(Qt::gray, 0.1F));
    if (edit_.hasFocus())
        Rounded::drawFocusRing(painter, rect(), Rounded::areaRadius);
    const double side = symbolSide();
    Symbols::paint(
        painter, u"magnifyingglass"_s, QRectF(padding, (height() - side) / 2, side, side),
        palette().color(QPalette::PlaceholderText));
}

bool SearchField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

} // namespace velmora
