#include "foundation/MainQueue.h"

#include <QCoreApplication>
#include <QThread>

namespace velmora::MainQueue {
namespace {

/// Lives on the main thread and is never destroyed: unlike the application object, it is there for
/// threads that submit while the program ends.
QObject* receiver = nullptr;

void makeReceiver() {
    if (receiver)
        return;
    receiver = new QObject;
    receiver->moveToThread(QCoreApplication::instance()->thread());
}
Q_COREAPP_STARTUP_FUNCTION(makeReceiver)

} // namespace

void submit(std::function<void()> task) {
    QMetaObject::invokeMethod(receiver, std::move(task), Qt::QueuedConnection);
}

} // namespace velmora::MainQueue
