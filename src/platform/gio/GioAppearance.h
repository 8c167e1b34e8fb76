#pragma once

#include "platform/Appearance.h"

namespace velmora {

/// The appearance that the desktop portal announces ("org.freedesktop.appearance color-scheme"),
/// and before it answers, or without it, the GNOME interface setting.
class GioAppearance : public Appearance {
public:
    void observe(std::function<void(bool prefersDark)> handler) override;
};

} // namespace velmora
