#include "settings/ShortcutEditorView.h"

#include "foundation/LocalizedString.h"
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

/// What a button has besides its action.
class BasicGroup : public FormGroup {
public:
    explicit BasicGroup(const std::optional<ShortcutButton>& shortcut)
        : FormGroup(localizedString("group_basic")),
          title(textField(
              shortcut ? shortcut->title : QString(), localizedString("Safari"),
              localizedString("label_title"))),
          icon_(textField(
              shortcut ? shortcut->icon : u"star"_s, localizedString("placeholder_sf_symbol"),
              localizedString("label_icon"))),
          alignment_(new SegmentedPicker(
              {localizedString("shortcut_alignment_left"),
               localizedString("shortcut_alignment_right")})) {
        addRow(title->accessibleName(), title);

        const QString iconLabel = icon_->accessibleName();
        auto* select = new QPushButton(localizedString("button_select"));
        select->setAccessibleDescription(iconLabel);
        const QList<QWidget*> iconControls{icon_, new SymbolPreview(*icon_), select};
        const QString hint = icon_->placeholderText();
        addRow(iconLabel, iconControls, icon_)->setToolTip(hint);
        for (QWidget* control : iconControls)
            control->setToolTip(hint);

        alignment_->setCurrentIndex(
            shortcut && shortcut->alignment == ButtonAlignment::right ? 1 : 0);
        alignment_->setAccessibleName(localizedString("label_alignment"));
        alignment_->setMinimumWidth(pickerWidth);
        addRow(alignment_->accessibleName(), {alignment_}, nullptr);

        connect(title, &QLineEdit::textChanged, this, &FormGroup::changed);
        connect(icon_, &QLineEdit::textChanged, this, &FormGroup::changed);
        connect(select, &QPushButton::clicked, this, [this] {
            const auto pick = [this](const QString& name) { icon_->setText(name); };
            Sheet::present(*this, std::make_unique<IconPickerView>(icon_->text(), pick));
        });
    }

    /// Whether the button would show anything.
    bool isComplete() const { return !title->text().isEmpty() || !icon_->text().isEmpty(); }

    ShortcutButton button(const ShortcutAction& action, const QUuid& id) const {
        return {
            title->text(), icon_->text(), action,
            alignment_->currentIndex() == 1 ? ButtonAlignment::right : ButtonAlignment::left, id};
    }

    QLineEdit* const title;

private:
    QLineEdit* const icon_;
    SegmentedPicker* const alignment_;
};

RecordEditor::Kind makeKind(
    const std::optional<ShortcutButton>& shortcut,
    std::function<void(const ShortcutButton&)> onSave) {
    auto* group = new BasicGroup(shortcut);
    return {
        .heading = localizedString(shortcut ? "shortcut_edit_title" : "shortcut_add_title"),
        .group = group,
        .firstControl = group->title,
        .actionHeading = localizedString("group_action"),
        .action = shortcut ? std::optional(shortcut->action) : std::nullopt,
        .size = {500, 450},
        .recordsReturn = true,
        .isComplete = [group] { return group->isComplete(); },
        .save = [group, onSave = std::move(onSave),
                 id = shortcut ? shortcut->id() : QUuid::createUuid()](
                    const ShortcutAction& action) { onSave(group->button(action, id)); }};
}

} // namespace

ShortcutEditorView::ShortcutEditorView(
    const std::optional<ShortcutButton>& shortcut,
    std::function<void(const ShortcutButton&)> onSave, std::function<void()> onCancel,
    InputGrants& inputGrants)
    : RecordEditor(makeKind(shortcut, std::move(onSave)), std::move(onCancel), inputGrants) {}

} // namespace velmora
