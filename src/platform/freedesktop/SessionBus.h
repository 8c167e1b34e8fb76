#pragma once

namespace velmora {

/// Whether the session has a message bus. Asking for one where there is none would start a bus
/// daemon that outlives the program.
bool hasSessionBus();

} // namespace velmora
