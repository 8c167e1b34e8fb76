// main() of the session tests.

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <sys/prctl.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    // An instance that takes another's place has no parent then; its end is still to be seen.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    return RUN_ALL_TESTS();
}
