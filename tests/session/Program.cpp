#include "session/Program.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace velmora::test {

Program::Program(
    const QString& file, const QStringList& arguments, const QProcessEnvironment& environment,
    const QString& logFile) {
    setProcessEnvironment(environment);
    setStandardErrorFile(logFile, Append);
    start(file, arguments);
    if (!waitForStarted())
        throw std::runtime_error("the program did not start");
}

void Program::kill() {
    EXPECT_TRUE(isRunning()) << "there is nothing to kill";
    isSeenOff_ = true;
    QProcess::kill();
    waitForFinished();
}

void Program::end() {
    if (std::exchange(isSeenOff_, true))
        return;
    if (isRunning())
        terminate();
    if (!waitForFinished(10000) && isRunning()) {
        ADD_FAILURE() << "the program does not end";
        QProcess::kill();
        waitForFinished();
        return;
    }
    EXPECT_EQ(exitStatus(), NormalExit) << "signal " << exitCode();
    EXPECT_EQ(exitCode(), expectedStatus_);
}

} // namespace velmora::test
