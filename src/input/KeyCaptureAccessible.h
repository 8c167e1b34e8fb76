#pragma once

#include <QAccessibleWidget>

namespace velmora {

/// The capture view as assistive technology sees it: a field for a key sequence whose value is the
/// combination's names.
class KeyCaptureAccessible : public QAccessibleWidget {
public:
    explicit KeyCaptureAccessible(QWidget* view);

    /// Makes every KeyCaptureNSView known under this; further calls do nothing.
    static void install();

    QString text(QAccessible::Text kind) const override;
};

} // namespace velmora
