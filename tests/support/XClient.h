#pragma once

#include <QByteArray>
#include <cstdlib>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace velmora::test {

/// Frees what xcb hands out.
struct Freed {
    void operator()(void* pointer) const { std::free(pointer); }
};
template<typename T>
using Reply = std::unique_ptr<T, Freed>;

/// A connection of its own to the display in the environment, as another program would have it.
class XClient {
public:
    /// Throws when the display cannot be reached.
    XClient();
    ~XClient() { xcb_disconnect(connection_); }
    XClient(const XClient&) = delete;
    XClient& operator=(const XClient&) = delete;

    operator xcb_connection_t*() const { return connection_; }
    xcb_window_t root() const { return screen_->root; }
    const xcb_screen_t& screen() const { return *screen_; }

    xcb_atom_t atom(const QByteArray& name) const;
    /// Returns when the server has done everything this client asked for.
    void sync() const;
    /// The 32-bit values of a window's property; empty without one.
    std::vector<uint32_t> property(xcb_window_t window, const QByteArray& name) const;

private:
    xcb_connection_t* connection_;
    const xcb_screen_t* screen_;
};

} // namespace velmora::test
