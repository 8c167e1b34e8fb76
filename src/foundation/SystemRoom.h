#pragma once

#include <cstddef>

namespace velmora {

/// Whether this process could open `descriptors` more files and map `bytes` more memory just now.
/// The libraries below us end the process by a signal, or wait for ever, where they get none: ask
/// before something big is begun. Any thread.
bool hasSystemRoom(int descriptors, std::size_t bytes);

} // namespace velmora
