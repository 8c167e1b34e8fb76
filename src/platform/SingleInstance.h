#pragma once

#include <functional>

namespace velmora {

/// The program's one place in the session. The session frees it when the process that has it ends,
/// however it ends. Main thread only.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;

    /// Takes the place. When another instance has it, asks that one to come forward and gives
    /// false: this launch is done. When that one is making room, waits for it to go first, for a
    /// few seconds at most. Needs no event loop.
    virtual bool claim() = 0;

    /// `handler` runs each time another launch asks this instance to come forward; at once when one
    /// has asked before.
    virtual void setComeForwardHandler(std::function<void()> handler) = 0;

    /// This instance is about to end: from the return of this call on, a launch waits for that
    /// instead of asking it to come forward.
    virtual void makeRoom() = 0;
};

} // namespace velmora
