# Finds what Wayland sessions need, and sets the option VELMORA_WAYLAND accordingly.

pkg_check_modules(Wayland QUIET IMPORTED_TARGET wayland-client wayland-protocols)
find_program(WAYLAND_SCANNER wayland-scanner)
find_package(PlasmaWaylandProtocols QUIET)
find_path(
    QT_NATIVE_INTERFACE qpa/qplatformnativeinterface.h
    PATHS ${Qt6Gui_INCLUDE_DIRS}
    PATH_SUFFIXES ${Qt6Gui_VERSION}/QtGui)

set(VELMORA_WAYLAND_FOUND OFF)
if(Wayland_FOUND AND WAYLAND_SCANNER AND PlasmaWaylandProtocols_FOUND AND QT_NATIVE_INTERFACE)
    set(VELMORA_WAYLAND_FOUND ON)
endif()
option(VELMORA_WAYLAND "Serve Wayland sessions, beside X11 ones" ${VELMORA_WAYLAND_FOUND})
if(VELMORA_WAYLAND AND NOT VELMORA_WAYLAND_FOUND)
    message(
        FATAL_ERROR "Wayland sessions need libwayland-dev, libwayland-bin, wayland-protocols, "
                    "plasma-wayland-protocols and qt6-base-private-dev; or say -DVELMORA_WAYLAND=OFF.")
endif()
