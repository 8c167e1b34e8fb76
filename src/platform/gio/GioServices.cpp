#include "platform/freedesktop/GioServices.h"

#include "platform/gio/GioAppearance.h"
#include "platform/gio/GioWorkspace.h"

extern "C" [[gnu::visibility("default")]] const velmora::GioServices& velmoraGioServices() {
    // Never destroyed: threads of launches may outlive the main function.
    static const auto* services = new velmora::GioServices{
        VELMORA_VERSION, *new velmora::GioAppearance, *new velmora::GioWorkspace};
    return *services;
}
