#include "input/KeyCaptureField.h"

#include "input/KeyCaptureNSView.h"

#include <QVBoxLayout>

namespace velmora {

KeyCaptureField::KeyCaptureField(
    Binding<QStringList> modifiers, Binding<QString> key, Binding<bool> isFocused,
    InputGrants& inputGrants, QWidget* parent)
    : QWidget(parent),
      modifiers_(modifiers),
      key_(key),
      isFocused_(isFocused),
      view_(new KeyCaptureNSView(inputGrants)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);

    view_->onKeyCapture = [this](const QStringList& newModifiers, const QString& newKey) {
        *modifiers_ = newModifiers;
        *key_ = newKey;
    };
    connect(view_, &KeyCaptureNSView::focusChanged, this, [this](bool focused) {
        *isFocused_ = focused;
    });
    modifiersNotifier_ = modifiers_->addNotifier([this] { updateView(); });
    keyNotifier_ = key_->addNotifier([this] { updateView(); });
    focusNotifier_ = isFocused_->addNotifier([this] { updateView(); });
    updateView();
}

void KeyCaptureField::updateView() {
    if (isFocused_->value()) {
        view_->setFocus();
        view_->reset();
    } else if (view_->hasFocus()) {
        view_->clearFocus();
    }
    if (modifiers_->value().isEmpty() && key_->value().isEmpty())
        view_->reset();
    view_->updateDisplay(*modifiers_, *key_);
}

} // namespace velmora
