#include "viewkit/Alert.h"

#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int textWidth = 340;
constexpr int titleSize = 14;
constexpr int margin = 20;

QLabel* textLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

} // namespace

void presentAlert(QWidget& presenter, const AlertTexts& texts, std::function<void()> onConfirm) {
    auto content = std::make_unique<QWidget>();
    QWidget* view = content.get();
    view->setWindowTitle(texts.title);
    view->setAccessibleName(texts.title);
    view->setAccessibleDescription(texts.message);

    QLabel* title = textLabel(texts.title);
    title->setFont(Theme::systemFont(titleSize, QFont::DemiBold));
    auto* cancel = new QPushButton(texts.cancel);
    cancel->setDefault(true);
    auto* destructive = new QPushButton(texts.destructive);
    destructive->setProperty("destructive", true);
    QObject::connect(cancel, &QPushButton::clicked, view, [view] { Sheet::dismiss(*view); });
    QObject::connect(
        destructive, &QPushButton::clicked, view, [view, confirm = std::move(onConfirm)] {
            Sheet::dismiss(*view);
            confirm();
        });

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::defaultSpacing);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(destructive);
    auto* stack = new QVBoxLayout(view);
    stack->setContentsMargins(margin, margin, margin, margin);
    stack->setSpacing(Theme::defaultSpacing);
    stack->addWidget(title);
    stack->addWidget(textLabel(texts.message));
    stack->addSpacing(Theme::defaultSpacing);
    stack->addLayout(buttons);
    view->setFocusProxy(cancel);
    Sheet::present(presenter, std::move(content));
}

} // namespace velmora
