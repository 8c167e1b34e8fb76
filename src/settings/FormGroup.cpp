#include "settings/FormGroup.h"

#include "foundation/LocalizedString.h"
#include "viewkit/FormParts.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <limits>

namespace velmora {
namespace {

constexpr int rowSpacing = 12;
constexpr int labelWidth = 100;

/// The width of all labels: `labelWidth`, or more where a language needs it.
int labelColumnWidth(const QFontMetrics& metrics) {
    int width = labelWidth;
    for (const char* key :
         {"label_title", "label_icon", "label_alignment", "mouse_action_label", "mouse_btn_label",
          "label_app", "label_url", "label_command", "label_key_combo"})
        width = qMax(width, metrics.horizontalAdvance(localizedString(key)));
    return width;
}

} // namespace

FormGroup::FormGroup(const QString& heading) {
    setAccessibleName(heading);
    QLabel* title = headline(heading);
    title->setForegroundRole(QPalette::PlaceholderText); // the secondary colour
    auto* box = new QFrame;
    box->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    rows_ = new QVBoxLayout(box);
    rows_->setContentsMargins(
        Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding, Theme::defaultPadding);
    rows_->setSpacing(rowSpacing);
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(Theme::defaultSpacing);
    stack->addWidget(title);
    stack->addWidget(box);
}

QLabel*
FormGroup::addRow(const QString& label, const QList<QWidget*>& controls, QWidget* stretched) {
    auto* name = new QLabel(label);
    name->setTextFormat(Qt::PlainText);
    name->setFixedSize(labelColumnWidth(name->fontMetrics()), controlHeight);
    name->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    name->setBuddy(controls.first());
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::defaultSpacing);
    row->addWidget(name, 0, Qt::AlignTop);
    for (QWidget* control : controls)
        row->addWidget(control, control == stretched ? 1 : 0);
    if (!stretched)
        row->addStretch();
    rows_->addLayout(row);
    return name;
}

void FormGroup::addRow(QWidget* control, Qt::Alignment alignment) {
    rows_->addWidget(control, 0, alignment);
}

QLineEdit* textField(const QString& text, const QString& placeholder, const QString& name) {
    auto* field = new QLineEdit;
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setText(text);
    field->setCursorPosition(0);
    field->setPlaceholderText(placeholder);
    field->setAccessibleName(name);
    return field;
}

} // namespace velmora
