#include "platform/freedesktop/LateGio.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "foundation/MainQueue.h"
#include "platform/freedesktop/GioServices.h"

#include <QFile>
#include <cstring>
#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const GioServices* open() {
    const QByteArray file =
        QFile::encodeName(Bundle::helperPath().value_or(QString()) + u"/velmora-gio.so"_s);
    // Never closed: GIO's types and threads stay for the life of the process.
    void* const module = ::dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL);
    const auto function = reinterpret_cast<GioServicesFunction>(
        module ? ::dlsym(module, gioServicesSymbol) : nullptr);
    if (!function) {
        Log::write(u"Applications and URLs are out of reach: %1"_s.arg(
            QString::fromLocal8Bit(::dlerror())));
        return nullptr;
    }
    const GioServices& services = function();
    if (std::strcmp(services.version, VELMORA_VERSION) != 0) {
        Log::write(u"Applications and URLs are out of reach: Velmora was updated; restart it."_s);
        return nullptr;
    }
    return &services;
}

const GioServices* services() {
    static const GioServices* const opened = open();
    return opened;
}

} // namespace

void loadGio() {
    services();
}

void LateAppearance::observe(Handler handler) {
    if (services())
        services()->appearance.observe(std::move(handler));
}

std::optional<QString> LateWorkspace::applicationLocation(const QString& identifier) const {
    return services() ? services()->workspace.applicationLocation(identifier) : std::nullopt;
}

QStringList LateWorkspace::applicationLocations(const QString& identifier) const {
    return services() ? services()->workspace.applicationLocations(identifier) : QStringList();
}

QList<InstalledApplication> LateWorkspace::installedApplications() const {
    return services() ? services()->workspace.installedApplications()
                      : QList<InstalledApplication>();
}

void LateWorkspace::openApplication(
    const QString& location, const OpenConfiguration& configuration, OpenCompletion completion) {
    if (services())
        services()->workspace.openApplication(location, configuration, std::move(completion));
    else
        MainQueue::submit([completion = std::move(completion)] { completion(u"no GIO"_s); });
}

bool LateWorkspace::openUrl(const QUrl& url) {
    return services() && services()->workspace.openUrl(url);
}

} // namespace velmora
