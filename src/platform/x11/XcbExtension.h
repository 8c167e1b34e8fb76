#pragma once

#include <xcb/xcb.h>

namespace velmora {

/// The extension as this connection knows it; null when the server lacks it.
inline const xcb_query_extension_reply_t*
findExtension(xcb_connection_t* connection, xcb_extension_t& id) {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &id);
    return extension && extension->present ? extension : nullptr;
}

} // namespace velmora
