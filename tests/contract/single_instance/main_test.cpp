// The tests on a display, and what relaunch() starts of them.

#include "Launch.h"
#include "support/TestDisplay.h"

#include <QCoreApplication>
#include <QFile>
#include <gmock/gmock.h>

using namespace velmora::test;

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(relaunchMark)) {
        Launch launch;
        QFile mark(qEnvironmentVariable(relaunchMark));
        return launch.instance.claim() && mark.open(QIODevice::WriteOnly) ? 0 : 1;
    }
    const TestDisplay display;
    return RUN_ALL_TESTS();
}
