#pragma once

namespace velmora {

class WindowActivation;

/// Tells the user, in one plain window that holds nothing up, that this session does not let
/// Velmora see keys and buttons. Closed for good by the user. Main thread only.
void showTrustNotice(WindowActivation& activation);

} // namespace velmora
