#pragma once

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

// The XKB protocol header names a member with a C++ keyword.
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

namespace velmora {

/// xcb hands out replies, events and errors that the caller frees.
struct Freed {
    void operator()(void* pointer) const { std::free(pointer); }
};
template<typename T>
using XcbOwned = std::unique_ptr<T, Freed>;

/// The extension as this connection knows it; null when the server lacks it.
inline const xcb_query_extension_reply_t*
findExtension(xcb_connection_t* connection, xcb_extension_t& id) {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &id);
    return extension && extension->present ? extension : nullptr;
}

} // namespace velmora
