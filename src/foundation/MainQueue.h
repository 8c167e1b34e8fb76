#pragma once

#include <functional>

/// Submission of work to the main thread's event loop.
namespace velmora::MainQueue {

/// Runs `task` on the main thread in a later turn of its event loop, in order of submission.
/// Callable from any thread once the application object exists; what is submitted while the program
/// ends is dropped.
void submit(std::function<void()> task);

} // namespace velmora::MainQueue
