#include "platform/EitherAppearance.h"

#include <utility>

namespace velmora {

void EitherAppearance::observe(Handler handler) {
    handler_ = std::move(handler);
    const auto note = [this](std::optional<bool>& place) {
        return [this, &place](std::optional<bool> prefersDark) {
            place = prefersDark;
            handler_(firstPrefers_ ? firstPrefers_ : secondPrefers_);
        };
    };
    first_.observe(note(firstPrefers_));
    second_.observe(note(secondPrefers_));
}

} // namespace velmora
