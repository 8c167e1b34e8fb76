#include "support/XErrors.h"

#include "foundation/Log.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

void look(const QString& line) {
    std::fprintf(stderr, "%s\n", qPrintable(line));
    if (line.contains(QLatin1String("X error")) || line.contains(QLatin1String("XCB error")))
        ADD_FAILURE() << line.toStdString();
}

} // namespace

void failOnXErrors() {
    Log::setSink(look);
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& message) { look(message); });
}

} // namespace velmora::test
