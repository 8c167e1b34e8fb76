#pragma once

#include <QAccessibleWidget>

namespace velmora {

class KeyCaptureNSView;

/// The capture view as assistive technology sees it: a field for a key sequence whose value is the
/// combination's names, and whose description adds how to leave it.
class KeyCaptureAccessible : public QAccessibleWidget {
public:
    explicit KeyCaptureAccessible(KeyCaptureNSView* view);

    /// Makes every KeyCaptureNSView known under this; further calls do nothing.
    static void install();

    QString text(QAccessible::Text kind) const override;
};

} // namespace velmora
