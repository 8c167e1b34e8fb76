#pragma once

#include "platform/Appearance.h"

#include <memory>

namespace velmora {

/// The appearance that the desktop portal announces ("org.freedesktop.appearance color-scheme"),
/// and before it answers, or without it, the GNOME interface setting.
class GioAppearance : public Appearance {
public:
    GioAppearance();
    ~GioAppearance() override;

    void observe(std::function<void(bool prefersDark)> handler) override;

private:
    struct Sources;
    std::unique_ptr<Sources> sources_;
};

} // namespace velmora
