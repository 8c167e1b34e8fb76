#pragma once

#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// A process of its own that lets go of our keys when we end without doing so, killed between a
/// press and its release. It sleeps until the server destroys a window of ours. The server does
/// that whatever ends us, and after all that we asked of it. The process ends with this object,
/// too.
class KeyWatcher {
public:
    explicit KeyWatcher(X11Connection& connection);
    ~KeyWatcher();
    KeyWatcher(const KeyWatcher&) = delete;
    KeyWatcher& operator=(const KeyWatcher&) = delete;

private:
    X11Connection& connection_;
    xcb_window_t window_;
};

} // namespace velmora
