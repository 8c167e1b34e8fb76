#include "foundation/MainQueue.h"

#include <QCoreApplication>
#include <QThread>

namespace velmora::MainQueue {
namespace {

/// Lives on the main thread and is never destroyed: unlike the application object, it is there for
/// threads that submit while the program ends.
QObject& receiver() {
    static QObject* instance = [] {
        auto* object = new QObject;
        object->moveToThread(QCoreApplication::instance()->thread());
        return object;
    }();
    return *instance;
}

} // namespace

void submit(std::function<void()> task) {
    QMetaObject::invokeMethod(&receiver(), std::move(task), Qt::QueuedConnection);
}

} // namespace velmora::MainQueue
