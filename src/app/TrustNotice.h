#pragma once

#include <QStringList>

namespace velmora {

class WindowActivation;

/// Tells the user, in one plain window that holds nothing up, that this session does not let
/// Velmora see keys and buttons, and why: the X server lacks `missingExtensions`, or, without any,
/// it is a Wayland session. Closed for good by the user. Main thread only.
void showTrustNotice(WindowActivation& activation, const QStringList& missingExtensions);

} // namespace velmora
