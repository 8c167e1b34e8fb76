#include "platform/Platform.h"

#include <QtGlobal>

namespace velmora {
namespace {
const Platform* currentPlatform = nullptr;
}

const Platform& Platform::current() {
    Q_ASSERT(currentPlatform);
    return *currentPlatform;
}

void Platform::setCurrent(const Platform& platform) {
    currentPlatform = &platform;
}

} // namespace velmora
