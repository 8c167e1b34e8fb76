#include "app/LastWords.h"

#include "foundation/Log.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QtMessageHandler qtHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg)
        endWithReason(message.simplified().toUtf8().constData());
    qtHandler(type, context, message);
}

[[noreturn]] void handleTermination() {
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::exception& exception) {
        endWithReason(exception.what());
    } catch (...) {
    }
    endWithReason("it cannot go on");
}

/// Takes no memory.
void writeDirectly(const char* text) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text, std::strlen(text));
}

} // namespace

void endWithReason(const char* reason) {
    try {
        Log::write(u"Velmora ends: "_s + QString::fromUtf8(reason));
        Log::flush();
    } catch (...) { // neither memory for the line nor a thread for the log
        for (const char* const text : {"Velmora ends: ", reason, "\n"})
            writeDirectly(text);
    }
    std::_Exit(EXIT_FAILURE);
}

void installLastWords() {
    qtHandler = qInstallMessageHandler(handleMessage);
    std::set_terminate(handleTermination);
}

} // namespace velmora
