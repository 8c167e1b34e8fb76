#pragma once

#include "app/CommandLine.h"
#include "app/RemoteControl.h"

namespace velmora {

class Exchange;

/// Carries out an import or an export, and says what became of it.
RemoteAnswer carryOutExchange(const RemoteRequest& request, const Exchange& exchange);

/// The same over the stored settings, while no instance runs. Needs neither a display nor an
/// application object, which may be made only afterwards.
RemoteAnswer carryOutExchange(const RemoteRequest& request);

/// Prints `answer`, a failure to standard error, and returns its status.
int printed(const RemoteAnswer& answer);

} // namespace velmora
