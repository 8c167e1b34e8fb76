#pragma once

#include <QPushButton>

namespace velmora {

/// A button for what cannot be undone; Style shows it as such.
class DestructiveButton : public QPushButton {
    Q_OBJECT
public:
    using QPushButton::QPushButton;
};

} // namespace velmora
