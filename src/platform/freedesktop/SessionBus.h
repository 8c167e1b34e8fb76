#pragma once

namespace velmora {

/// Whether the session has a message bus. Asking for one where there is none would start a bus
/// daemon that outlives the program.
bool hasSessionBus();

/// Where there is no bus, keeps Qt from starting one: it asks by itself, for accessibility and for
/// trays. Call once, after the application object was made.
void startNoSessionBus();

} // namespace velmora
