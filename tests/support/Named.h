#pragma once

#include <QAccessible>
#include <QWidget>
#include <stdexcept>

namespace velmora::test {

/// The control in `view` that assistive programs call `name`; throws when there is none.
template<typename Control>
Control& named(const QWidget& view, const QString& name) {
    for (auto* control : view.findChildren<Control*>()) {
        // Qt names a pop-up button after what it shows.
        if (control->accessibleName() == name ||
            QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name) == name)
            return *control;
    }
    throw std::runtime_error("no control is called " + name.toStdString());
}

} // namespace velmora::test
