#pragma once

namespace velmora {

/// Puts the folder of the private helper commands (Bundle::helperPath()) last on this process's
/// PATH, which every command inherits: a command of the system by the same name comes first. Does
/// nothing when it is there already, as after a relaunch. Call once at start, before other threads.
void appendHelperPath();

} // namespace velmora
