#pragma once

#include "platform/Appearance.h"

namespace velmora {

/// What the first of two sources prefers, or the second where the first has no preference.
class EitherAppearance : public Appearance {
public:
    EitherAppearance(Appearance& first, Appearance& second) : first_(first), second_(second) {}

    void observe(Handler handler) override;

private:
    Appearance& first_;
    Appearance& second_;
    Handler handler_;
    std::optional<bool> firstPrefers_;
    std::optional<bool> secondPrefers_;
};

} // namespace velmora
