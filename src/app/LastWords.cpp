#include "app/LastWords.h"

#include "foundation/Log.h"

#include <cstdlib>
#include <exception>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QtMessageHandler qtHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg)
        endWithReason(message.simplified());
    qtHandler(type, context, message);
}

[[noreturn]] void handleTermination() {
    QString reason = u"it cannot go on"_s;
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::exception& exception) {
        reason = QString::fromLocal8Bit(exception.what());
    } catch (...) {
    }
    endWithReason(reason);
}

} // namespace

void endWithReason(const QString& reason) {
    const QString line = u"Velmora ends: "_s + reason;
    try {
        Log::write(line);
        Log::flush();
    } catch (...) { // no thread for the log
        const QByteArray text = line.toUtf8() + '\n';
        [[maybe_unused]] const auto written =
            ::write(STDERR_FILENO, text.constData(), static_cast<size_t>(text.size()));
    }
    std::_Exit(EXIT_FAILURE);
}

void installLastWords() {
    qtHandler = qInstallMessageHandler(handleMessage);
    std::set_terminate(handleTermination);
}

} // namespace velmora
