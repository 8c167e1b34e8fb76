#include "settings/ActionForm.h"

#include "foundation/LocalizedString.h"
#include "input/KeyCaptureView.h"
#include "settings/FormGroup.h"
#include "settings/TypedUrl.h"
#include "settings/applications/AppPickerView.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

namespace velmora {
namespace {

constexpr int commandHeight = 80;
constexpr int commandPadding = 4;
constexpr int commandMargin = 6;     ///< between its frame and the text
constexpr int keyCaptureHeight = 42; ///< of its field and outline
constexpr int parameterSpacing = 4;
constexpr int noteFontSize = 10; ///< below a field

/// The label of a type's parameters, in the order of the types.
constexpr std::array<const char*, actionTypeCount> parameterLabels = {
    "label_app", "label_url", "label_command", "label_key_combo"};

QVBoxLayout* makeStack(QWidget* view) {
    auto* stack = new QVBoxLayout(view);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(parameterSpacing);
    return stack;
}

/// A small line below a field.
QLabel* noteLabel() {
    auto* note = new QLabel;
    note->setTextFormat(Qt::PlainText);
    note->setFont(Theme::systemFont(noteFontSize));
    note->setForegroundRole(QPalette::PlaceholderText);
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return note;
}

/// Every character as it was entered; toPlainText() makes ordinary ones of special spaces and line
/// separators.
QString commandText(const QTextDocument& document) {
    return document.toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

ActionForm::ActionForm(const QString& heading, ActionFields fields, InputGrants& inputGrants)
    : fields_(std::move(fields)),
      keyModifiers_(std::make_shared<QProperty<QStringList>>(fields_.keyModifiers)),
      keyValue_(std::make_shared<QProperty<QString>>(fields_.keyValue)),
      isKeyCaptureFocused_(std::make_shared<QProperty<bool>>(false)),
      appName_(textField(
          fields_.appName, localizedString("placeholder_app_name"), localizedString("label_app"))),
      bundleId_(noteLabel()),
      url_(
          textField(fields_.url, localizedString("placeholder_url"), localizedString("label_url"))),
      urlNote_(noteLabel()),
      keyCapture_(new KeyCaptureView(keyModifiers_, keyValue_, isKeyCaptureFocused_, inputGrants)),
      parameters_{makeAppParameter(), makeUrlParameter(), makeCommandParameter(), keyCapture_} {
    const QString typeLabel = localizedString("mouse_action_label");
    auto* typePicker = new PopUpButton(typeLabel);
    for (int type = 0; type < actionTypeCount; ++type)
        typePicker->addItem(localizedName(static_cast<ActionType>(type)));
    typePicker->setMinimumWidth(FormGroup::pickerWidth);

    auto* group = new FormGroup(heading);
    group->addRow(typeLabel, {typePicker}, nullptr);
    auto* parameter = new QWidget;
    QVBoxLayout* parameterStack = makeStack(parameter);
    for (QWidget* view : parameters_)
        parameterStack->addWidget(view);
    parameterLabel_ = group->addRow({}, parameter);
    makeStack(this)->addWidget(group);

    modifiersNotifier_ = keyModifiers_->addNotifier([this] { Q_EMIT fieldsChanged(); });
    keyNotifier_ = keyValue_->addNotifier([this] { Q_EMIT fieldsChanged(); });
    typePicker->setCurrentIndex(static_cast<int>(fields_.type));
    setType(fields_.type);
    connect(typePicker, &PopUpButton::currentIndexChanged, this, [this](int index) {
        setType(static_cast<ActionType>(index));
        Q_EMIT typeChanged();
        Q_EMIT fieldsChanged();
        if (fields_.type == ActionType::pressKey)
            *isKeyCaptureFocused_ = true;
    });
}

QWidget* ActionForm::makeAppParameter() {
    connect(appName_, &QLineEdit::textChanged, this, [this](const QString& text) {
        fields_.appName = text;
        Q_EMIT fieldsChanged();
    });
    auto* select = new QPushButton(localizedString("button_select"));
    select->setAccessibleDescription(appName_->accessibleName());
    connect(select, &QPushButton::clicked, this, &ActionForm::showAppPicker);

    auto* view = new QWidget;
    QVBoxLayout* stack = makeStack(view);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::defaultSpacing);
    row->addWidget(appName_, 1);
    row->addWidget(select);
    stack->addLayout(row);
    stack->addWidget(bundleId_);
    setBundleId(fields_.bundleId);
    return view;
}

QWidget* ActionForm::makeUrlParameter() {
    url_->setToolTip(url_->placeholderText());
    connect(url_, &QLineEdit::textChanged, this, [this](const QString& text) {
        fields_.url = text;
        updateUrlNote();
        Q_EMIT fieldsChanged();
    });
    // Its line is there also while it is empty: the form must not jump under the hand that types.
    urlNote_->setFixedHeight(urlNote_->fontMetrics().height());
    auto* view = new QWidget;
    QVBoxLayout* stack = makeStack(view);
    stack->addWidget(url_);
    stack->addWidget(urlNote_);
    updateUrlNote();
    return view;
}

void ActionForm::updateUrlNote() {
    const auto url = typedUrl(fields_.url);
    setUrlNote(url && *url != fields_.url ? displayName(OpenUrl{*url}) : QString());
}

void ActionForm::setUrlNote(const QString& note, QPalette::ColorRole color) {
    urlNote_->setText(note);
    urlNote_->setForegroundRole(color);
    url_->setAccessibleDescription(note);
}

bool ActionForm::complete() {
    if (fields_.type != ActionType::openURL)
        return true;
    if (const auto url = typedUrl(fields_.url)) {
        url_->setText(*url);
        return true;
    }
    setUrlNote(localizedString("url_invalid"), QPalette::BrightText);
    url_->setFocus();
    return false;
}

QWidget* ActionForm::makeCommandParameter() {
    auto* command = new QPlainTextEdit(fields_.shellCommand);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(WindowTheme::fontSize);
    command->setFont(font);
    command->setFixedHeight(commandHeight);
    command->document()->setDocumentMargin(commandMargin);
    command->setTabChangesFocus(true);
    command->setAccessibleName(localizedString("label_command"));
    connect(command, &QPlainTextEdit::textChanged, this, [this, command] {
        fields_.shellCommand = commandText(*command->document());
        Q_EMIT fieldsChanged();
    });
    auto* view = new QWidget;
    QVBoxLayout* stack = makeStack(view);
    stack->setContentsMargins(0, commandPadding, 0, commandPadding);
    stack->addWidget(command);
    return view;
}

ActionFields ActionForm::fields() const {
    ActionFields fields = fields_;
    fields.keyModifiers = *keyModifiers_;
    fields.keyValue = *keyValue_;
    return fields;
}

void ActionForm::setType(ActionType type) {
    fields_.type = type;
    const int chosen = static_cast<int>(type);
    for (int index = 0; index < actionTypeCount; ++index)
        parameters_[index]->setVisible(index == chosen);
    parameterLabel_->setText(localizedString(parameterLabels[chosen]));
    parameterLabel_->setFixedHeight(
        type == ActionType::pressKey ? keyCaptureHeight : FormGroup::controlHeight);
}

void ActionForm::setBundleId(const QString& bundleId) {
    fields_.bundleId = bundleId;
    bundleId_->setText(bundleId);
    bundleId_->setVisible(!bundleId.isEmpty());
}

void ActionForm::showAppPicker() {
    Sheet::present(
        *this, std::make_unique<AppPickerView>(fields_.bundleId, [this](const AppInfo& app) {
            setBundleId(app.bundleId);
            appName_->setText(app.name);
            appName_->setCursorPosition(0);
        }));
}

} // namespace velmora
