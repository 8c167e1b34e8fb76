#pragma once

struct xcb_connection_t;

namespace velmora {

/// Qt's own connection: what concerns one of Qt's windows and must keep its order with Qt's own
/// requests goes there. Needs the application object.
xcb_connection_t* qtConnection();

/// Returns once the server has carried out what Qt asked of it so far: one round trip.
void syncQtConnection();

} // namespace velmora
