#include "app/TerminationSignals.h"

#include <QCoreApplication>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace velmora {
namespace {

volatile std::sig_atomic_t signalDescriptor = -1;

void wake(int) {
    const int savedError = errno;
    const eventfd_t one = 1;
    // The counter cannot overflow: the first signal already ends the event loop.
    [[maybe_unused]] const ssize_t written = ::write(signalDescriptor, &one, sizeof one);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals()
    : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      notifier_(descriptor_, QSocketNotifier::Read) {
    signalDescriptor = descriptor_;
    QObject::connect(&notifier_, &QSocketNotifier::activated, [] { QCoreApplication::exit(); });
    struct sigaction action = {};
    action.sa_handler = wake;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction inherited = {};
        ::sigaction(signal, nullptr, &inherited);
        // Started to survive it, say by nohup.
        if (inherited.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::signal(signal, SIG_DFL);
    notifier_.setEnabled(false);
    ::close(descriptor_);
}

} // namespace velmora
