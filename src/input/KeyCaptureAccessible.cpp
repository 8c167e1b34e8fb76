#include "input/KeyCaptureAccessible.h"

#include "input/KeyCaptureNSView.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* view = qobject_cast<KeyCaptureNSView*>(object);
    return view ? new KeyCaptureAccessible(view) : nullptr;
}

} // namespace

KeyCaptureAccessible::KeyCaptureAccessible(KeyCaptureNSView* view)
    : QAccessibleWidget(view, QAccessible::HotkeyField) {}

void KeyCaptureAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    Q_UNUSED(installed);
}

QString KeyCaptureAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? static_cast<const KeyCaptureNSView&>(*widget()).spokenText()
                                      : QAccessibleWidget::text(kind);
}

} // namespace velmora
