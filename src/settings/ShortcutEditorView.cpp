#include "settings/ShortcutEditorView.h"

#include "foundation/LocalizedString.h"
#include "settings/ActionForm.h"
#include "settings/FormGroup.h"
#include "settings/IconPickerView.h"
#include "viewkit/SegmentedPicker.h"
#include "viewkit/Sheet.h"
#include "viewkit/Symbols.h"
#include "viewkit/WindowTheme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr QSize editorSize(500, 450);

/// The symbol that the icon field names, as it is typed.
class SymbolPreview : public QWidget {
public:
    explicit SymbolPreview(const QLineEdit& name) : name_(name) {
        constexpr int side = 24;
        setFixedSize(side, side);
        connect(&name, &QLineEdit::textChanged, this, [this] { update(); });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const double side = Symbols::sideLength(WindowTheme::fontSize);
        QRectF symbol(0, 0, side, side);
        symbol.moveCenter(QRectF(rect()).center());
        Symbols::paint(painter, name_.text(), symbol, palette().color(QPalette::WindowText));
    }

private:
    const QLineEdit& name_;
};

} // namespace

ShortcutEditorView::BasicGroup
ShortcutEditorView::makeBasicGroup(const std::optional<ShortcutButton>& shortcut) {
    BasicGroup basic{};
    basic.group = new FormGroup(localizedString("group_basic"));

    const QString titleLabel = localizedString("label_title");
    basic.title =
        textField(shortcut ? shortcut->title : QString(), localizedString("Safari"), titleLabel);
    basic.group->addRow(titleLabel, basic.title);

    const QString iconLabel = localizedString("label_icon");
    const QString iconHint = localizedString("placeholder_sf_symbol");
    basic.icon = textField(shortcut ? shortcut->icon : u"star"_s, iconHint, iconLabel);
    basic.iconPreview = new SymbolPreview(*basic.icon);
    basic.select = new QPushButton(localizedString("button_select"));
    basic.select->setAutoDefault(false);
    basic.select->setAccessibleDescription(iconLabel);
    const QList<QWidget*> iconControls{basic.icon, basic.iconPreview, basic.select};
    basic.group->addRow(iconLabel, iconControls, basic.icon)->setToolTip(iconHint);
    for (QWidget* control : iconControls)
        control->setToolTip(iconHint);

    const QString alignmentLabel = localizedString("label_alignment");
    basic.alignment = new SegmentedPicker(
        {localizedString("shortcut_alignment_left"), localizedString("shortcut_alignment_right")});
    basic.alignment->setCurrentIndex(
        shortcut && shortcut->alignment == ButtonAlignment::right ? 1 : 0);
    basic.alignment->setAccessibleName(alignmentLabel);
    basic.alignment->setMinimumWidth(FormGroup::pickerWidth);
    basic.group->addRow(alignmentLabel, {basic.alignment}, nullptr);
    return basic;
}

ShortcutEditorView::ShortcutEditorView(
    std::optional<ShortcutButton> shortcut, std::function<void(const ShortcutButton&)> onSave,
    std::function<void()> onCancel, EventTaps& eventTaps)
    : ShortcutEditorView(
          makeBasicGroup(shortcut), shortcut, std::move(onSave), std::move(onCancel), eventTaps) {}

ShortcutEditorView::ShortcutEditorView(
    BasicGroup basic, std::optional<ShortcutButton> shortcut,
    std::function<void(const ShortcutButton&)> onSave, std::function<void()> onCancel,
    EventTaps& eventTaps)
    : RecordEditor(
          {.heading = localizedString(shortcut ? "shortcut_edit_title" : "shortcut_add_title"),
           .actionHeading = localizedString("group_action")},
          basic.group, shortcut ? std::optional(shortcut->action) : std::nullopt, eventTaps,
          std::move(onCancel)),
      basic_(basic),
      shortcut_(std::move(shortcut)),
      onSave_(std::move(onSave)) {
    connect(basic_.title, &QLineEdit::textChanged, this, &ShortcutEditorView::updateSaveButton);
    connect(basic_.icon, &QLineEdit::textChanged, this, &ShortcutEditorView::updateSaveButton);
    connect(basic_.select, &QPushButton::clicked, this, &ShortcutEditorView::showIconPicker);
    // While a combination is recorded, Return is a key like any other.
    focusNotifier_ = actionForm().isKeyCaptureFocused()->addNotifier(
        [this] { saveButton().setDefault(!*actionForm().isKeyCaptureFocused()); });
    finish(editorSize, basic_.title);
}

bool ShortcutEditorView::isValid() const {
    const bool isVisible = !basic_.title->text().isEmpty() || !basic_.icon->text().isEmpty();
    return isVisible && RecordEditor::isValid();
}

void ShortcutEditorView::save() {
    onSave_(ShortcutButton(
        basic_.title->text(), basic_.icon->text(), actionForm().fields().action(),
        basic_.alignment->currentIndex() == 1 ? ButtonAlignment::right : ButtonAlignment::left,
        shortcut_ ? shortcut_->id() : QUuid::createUuid()));
}

void ShortcutEditorView::showIconPicker() {
    Sheet::present(
        *this, std::make_unique<IconPickerView>(basic_.icon->text(), [this](const QString& name) {
            basic_.icon->setText(name);
        }));
}

} // namespace velmora
