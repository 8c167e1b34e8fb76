// Part of the program where it is built with AddressSanitizer: looks for leaks when the application
// object goes. The usual look, after all that Qt does at the very end, now and then finds the data
// of Qt's D-Bus thread: a thread that has been waited for may still be on its way out when Qt takes
// the key by which it would let go of them.

#include <QCoreApplication>
#include <sanitizer/lsan_interface.h>

namespace {

void lookWhenTheApplicationGoes() {
    qAddPostRoutine([] { __lsan_do_leak_check(); });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(lookWhenTheApplicationGoes)
