#pragma once

#include <functional>

namespace velmora {

class SingleInstance;

/// Starts a new instance of this program, which outlives this one and takes over the place of
/// `instance` as soon as this process has ended. `completion` runs in a later turn of the event
/// loop, whether or not the new instance could be started; this one is then expected to end. Main
/// thread only.
void relaunch(SingleInstance& instance, std::function<void()> completion);

} // namespace velmora
