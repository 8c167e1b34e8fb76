#pragma once

#include "platform/Appearance.h"

namespace velmora {

/// The appearance that the desktop portal announces ("org.freedesktop.appearance color-scheme"),
/// and before it answers, or without it, the GNOME interface setting of that name.
class GioAppearance : public Appearance {
public:
    void observe(Handler handler) override;
};

} // namespace velmora
