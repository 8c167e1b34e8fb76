#pragma once

#include "platform/Session.h"

#include <memory>
#include <string>
#include <variant>

namespace velmora {

/// Looks at the environment and gives the session that serves best, or, as the rest of a sentence,
/// why there is none. Needs no application object.
std::variant<std::unique_ptr<Session>, std::string> openSession();

} // namespace velmora
