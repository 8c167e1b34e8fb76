#include "platform/Relaunch.h"

#include "foundation/MainQueue.h"
#include "platform/SingleInstance.h"

#include <QCoreApplication>
#include <QProcess>

namespace velmora {

void relaunch(SingleInstance& instance, std::function<void()> completion) {
    instance.makeRoom();
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
    MainQueue::submit(std::move(completion));
}

} // namespace velmora
