// Saves one value, for a test that lets the system calls of it fail one by one.

#include "foundation/UserDefaults.h"

#include <QCoreApplication>
#include <unistd.h>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    velmora::UserDefaults defaults(QString::fromLocal8Bit(argv[1]));
    (void)::access("the save begins", F_OK);
    defaults.setData(QStringLiteral("key"), argv[2]);
    (void)::access("the save ends", F_OK);
    return defaults.failure().isEmpty() ? 0 : 3;
}
