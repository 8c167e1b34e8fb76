#include "settings/HotKeyField.h"

#include "foundation/LocalizedString.h"
#include "input/HotKeyManager.h"
#include "input/KeyCaptureNSView.h"
#include "settings/FormGroup.h"
#include "viewkit/Rounded.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int fieldWidth = 180;
constexpr int noteSpacing = 4;
constexpr int outlineWidth = 1;

/// Tab and Escape, which would be refused, are ways out instead.
bool isWayOut(const QStringList& modifiers, const QString& key) {
    return (modifiers.isEmpty() && (key == u"Tab"_s || key == u"Escape"_s)) ||
           (modifiers == QStringList(u"Shift"_s) && key == u"Tab"_s);
}

} // namespace

HotKeyField::HotKeyField(Preferences& preferences, HotKeyManager& manager, InputGrants& inputGrants)
    : preferences_(preferences),
      manager_(manager),
      view_(new KeyCaptureNSView(inputGrants)),
      change_(new QPushButton(localizedString("hotkey_change"))),
      reset_(new QPushButton(localizedString("hotkey_reset"))),
      note_(new QLabel) {
    view_->setFixedSize(fieldWidth, FormGroup::controlHeight);
    view_->setFocusPolicy(Qt::ClickFocus);
    view_->setAccessibleName(localizedString("hotkey_title"));
    change_->setAccessibleName(localizedString("hotkey_change_name"));
    reset_->setAccessibleName(localizedString("hotkey_reset_name"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);

    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::defaultSpacing);
    row->addWidget(view_);
    row->addWidget(change_);
    row->addWidget(reset_);
    row->addStretch();
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(outlineWidth, outlineWidth, 0, 0);
    stack->setSpacing(noteSpacing);
    stack->addLayout(row);
    stack->addWidget(note_);

    view_->onKeyCapture = [this](const QStringList& modifiers, const QString& key) {
        if (key.isEmpty())
            view_->updateDisplay(modifiers, {});
        else
            take(modifiers, key);
    };
    connect(view_, &KeyCaptureNSView::modifiersReleased, this, [this] {
        if (answer_ == Answer::taken)
            endRecording();
        else
            update();
    });
    connect(view_, &KeyCaptureNSView::focusChanged, this, [this](bool focused) {
        answer_ = Answer::none;
        update();
        // A window that comes forward again must not go on recording.
        if (!focused)
            QMetaObject::invokeMethod(this, &HotKeyField::endRecording, Qt::QueuedConnection);
    });
    connect(change_, &QPushButton::clicked, this, [this] { view_->setFocus(); });
    connect(reset_, &QPushButton::clicked, this, [this] {
        change_->setFocus();
        preferences_.setHotKey({});
    });
    connect(&preferences_, &Preferences::changed, this, &HotKeyField::update);
    connect(&manager_, &HotKeyManager::problemChanged, this, &HotKeyField::updateNote);
    update();
}

HotKeyField::~HotKeyField() {
    // It is gone after this, and loses the focus on its way.
    view_->disconnect(this);
}

void HotKeyField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int w = outlineWidth;
    Rounded::fill(
        painter, view_->geometry().adjusted(-w, -w, w, w), Rounded::controlRadius + w,
        WindowTheme::colors().base, WindowTheme::colors().border);
}

void HotKeyField::take(const QStringList& modifiers, const QString& key) {
    const HotKey hotKey{modifiers, view_->currentKeyCode(), key};
    // Not at once: the view is not done with this key.
    if (isWayOut(modifiers, key))
        QMetaObject::invokeMethod(this, &HotKeyField::endRecording, Qt::QueuedConnection);
    else
        answer_ = hotKey.isUsable() ? Answer::taken : Answer::refused;
    preferences_.setHotKey(hotKey);
    update();
}

void HotKeyField::endRecording() {
    if (view_->window()->focusWidget() == view_)
        change_->setFocus();
}

void HotKeyField::update() {
    const HotKey hotKey = preferences_.hotKey();
    view_->reset();
    view_->updateDisplay(hotKey.modifiers, hotKey.key);
    reset_->setEnabled(hotKey != HotKey());
    updateNote();
}

void HotKeyField::updateNote() {
    const bool isRefused = answer_ == Answer::refused;
    const bool hasProblem = isRefused || !(view_->hasFocus() || manager_.problem().isEmpty());
    note_->setForegroundRole(hasProblem ? QPalette::BrightText : QPalette::PlaceholderText);
    note_->setText(
        isRefused           ? localizedString("hotkey_refused")
        : hasProblem        ? manager_.problem()
        : view_->hasFocus() ? localizedString("hotkey_recording")
                            : localizedString("hotkey_hint"));
    view_->setAccessibleDescription(note_->text());
    change_->setAccessibleDescription(preferences_.hotKey().name() + u". "_s + note_->text());
}

} // namespace velmora
