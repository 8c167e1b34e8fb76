#pragma once

#include <QSocketNotifier>

namespace velmora {

/// Turns SIGTERM, SIGINT and SIGHUP into an orderly quit of the application, so that a key that is
/// being pressed is released first. One instance a process.
class TerminationSignals {
public:
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    int descriptor_;
    QSocketNotifier notifier_;
};

} // namespace velmora
