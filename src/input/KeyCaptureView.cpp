#include "input/KeyCaptureView.h"

#include "foundation/LocalizedString.h"
#include "input/KeyCaptureField.h"
#include "input/KeyCaptureNSView.h"
#include "viewkit/PlainButton.h"
#include "viewkit/Rounded.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

namespace velmora {
namespace {

constexpr int fieldHeight = 40;
constexpr int childSpacing = 4;
constexpr int footerFontSize = 11;
constexpr int outlineWidth = 2;
constexpr QColor outlineColor(128, 128, 128, 77); // gray at opacity 0.3

/// The line around the field, centred on the field's edge, above it and transparent to the pointer.
class Outline : public QWidget {
public:
    Outline(Binding<bool> isFocused, QWidget* parent)
        : QWidget(parent), isFocused_(std::move(isFocused)) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Rounded::drawFocusRing(
            painter, rect(), Rounded::controlRadius + outlineWidth / 2.0,
            isFocused_->value() ? WindowTheme::colors().accent : outlineColor);
    }

private:
    const Binding<bool> isFocused_;
};

/// A title in the accent colour without a bezel. A click leaves the focus where it is, so that
/// after clearing the next combination can be pressed at once.
class ClearButton : public PlainButton {
public:
    ClearButton() {
        setAccessibleName(title_);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        return QFontMetrics(Theme::systemFont(footerFontSize)).size(Qt::TextSingleLine, title_);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QFont titleFont = Theme::systemFont(footerFontSize);
        titleFont.setUnderline(hasFocus() || isHovered());
        painter.setFont(titleFont);
        painter.setOpacity(isDown() ? 0.6 : 1);
        painter.setPen(palette().link().color());
        painter.drawText(rect(), Qt::AlignCenter, title_);
    }

private:
    const QString title_ = localizedString("クリア");
};

/// A small text in the secondary colour, which gives way where there is no room.
class Hint : public QLabel {
public:
    Hint() {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setForegroundRole(QPalette::PlaceholderText);
        setFont(Theme::systemFont(footerFontSize));
    }
};

} // namespace

KeyCaptureView::KeyCaptureView(
    Binding<QStringList> modifiers, Binding<QString> key, Binding<bool> isFocused,
    InputGrants& inputGrants, QWidget* parent)
    : QWidget(parent),
      modifiers_(modifiers),
      key_(key),
      isFocused_(isFocused),
      field_(new KeyCaptureField(modifiers_, key_, isFocused_, inputGrants)),
      hint_(new Hint),
      clearButton_(new ClearButton),
      outline_(new Outline(isFocused_, this)) {
    field_->setFixedHeight(fieldHeight);
    connect(clearButton_, &PlainButton::clicked, this, [this] {
        *modifiers_ = QStringList();
        *key_ = QString();
    });

    auto* footer = new QHBoxLayout;
    footer->addWidget(hint_, 1);
    footer->addWidget(clearButton_, 0, Qt::AlignTrailing);

    auto* stack = new QVBoxLayout(this);
    // Room for the half of the outline that lies outside the field.
    const int overhang = outlineWidth / 2;
    stack->setContentsMargins(overhang, overhang, overhang, 0);
    stack->setSpacing(childSpacing);
    stack->addWidget(field_);
    stack->addLayout(footer);
    stack->addStretch();
    setFocusProxy(field_);

    modifiersNotifier_ = modifiers_->addNotifier([this] { updateFooter(); });
    keyNotifier_ = key_->addNotifier([this] { updateFooter(); });
    focusNotifier_ = isFocused_->addNotifier([this] { outline_->update(); });
    connect(&view(), &KeyCaptureNSView::tabWayOutChanged, this, &KeyCaptureView::updateFooter);
    updateFooter();
}

KeyCaptureNSView& KeyCaptureView::view() {
    return field_->view();
}

void KeyCaptureView::updateFooter() {
    const bool hasCombination = !modifiers_->value().isEmpty() || !key_->value().isEmpty();
    const bool leaves = view().isTabWayOut();
    hint_->setText(
        leaves ? localizedString("key_capture_leave") : localizedString("例: ⌘C, ⌥⇧N, ⌃⌘Space"));
    hint_->setVisible(leaves || !hasCombination);
    clearButton_->setVisible(hasCombination);
}

void KeyCaptureView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (wasShown_)
        return;
    wasShown_ = true;
    *isFocused_ = true;
}

void KeyCaptureView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int overhang = outlineWidth / 2;
    outline_->setGeometry(field_->geometry().adjusted(-overhang, -overhang, overhang, overhang));
    outline_->raise();
}

} // namespace velmora
