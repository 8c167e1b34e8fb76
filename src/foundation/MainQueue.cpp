#include "foundation/MainQueue.h"

#include <QCoreApplication>

namespace velmora::MainQueue {

void submit(std::function<void()> task) {
    if (QCoreApplication* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(task), Qt::QueuedConnection);
}

} // namespace velmora::MainQueue
