#include "platform/freedesktop/Gio.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"

#include <QFile>
#include <cstring>
#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const GioModule* load() {
    const QByteArray file =
        QFile::encodeName(Bundle::helperPath().value_or(QString()) + u"/velmora-gio.so"_s);
    // Never closed: GIO's types and threads stay for the life of the process.
    void* const library = ::dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL);
    const auto function =
        reinterpret_cast<GioModuleFunction>(library ? ::dlsym(library, gioModuleSymbol) : nullptr);
    if (!function) {
        Log::write(u"Applications and URLs are out of reach: %1"_s.arg(
            QString::fromLocal8Bit(::dlerror())));
        return nullptr;
    }
    const GioModule& module = function();
    if (std::strcmp(module.version, VELMORA_VERSION) != 0) {
        Log::write(u"Applications and URLs are out of reach: Velmora was updated; restart it."_s);
        return nullptr;
    }
    return &module;
}

} // namespace

const GioModule* gio() {
    static const GioModule* const loaded = load();
    return loaded;
}

} // namespace velmora
