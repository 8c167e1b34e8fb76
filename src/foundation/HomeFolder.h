#pragma once

namespace velmora {

/// Takes the user's home folder from the password database where HOME names none, as a login does:
/// Qt would take the root folder for it, and commands would have none. Call once at start, before
/// anything asks for a file of the user and before other threads.
void ensureHomeFolder();

} // namespace velmora
