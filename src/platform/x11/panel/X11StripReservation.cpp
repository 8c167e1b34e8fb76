#include "platform/x11/panel/X11StripReservation.h"

#include "platform/x11/base/X11Connection.h"

#include <array>
#include <xcb/shape.h>

namespace velmora {
namespace {

constexpr std::uint32_t kAllDesktops = 0xffffffff;
// WM_HINTS: 9 numbers of which the first says which others count, as XSetWMHints() writes them.
constexpr std::uint32_t kInputHint = 1;
// WM_NORMAL_HINTS: 18 numbers, likewise. The place and size in it are said to be obsolete, but
// there are window managers that go by them.
constexpr std::uint32_t kUserPlace = 1, kUserSize = 2, kLeastSize = 16, kLargestSize = 32;

} // namespace

X11StripReservation::X11StripReservation(
    X11Connection& connection, const QRect& place, const TopStrut& strut)
    : connection_(connection), window_(xcb_generate_id(connection)) {
    connection.prepareAtoms(
        {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_DESKTOP", "_NET_WM_STRUT",
         "_NET_WM_STRUT_PARTIAL"});
    const auto width = static_cast<std::uint16_t>(place.width());
    const auto height = static_cast<std::uint16_t>(place.height());
    xcb_create_window(
        connection, XCB_COPY_FROM_PARENT, window_, connection.root(),
        static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()), width, height,
        0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto set = [&](xcb_atom_t name, xcb_atom_t type, const auto& numbers) {
        xcb_change_property(
            connection, XCB_PROP_MODE_REPLACE, window_, name, type, 32,
            static_cast<std::uint32_t>(numbers.size()), numbers.data());
    };
    const auto setText = [&](xcb_atom_t name, QByteArrayView text) {
        xcb_change_property(
            connection, XCB_PROP_MODE_REPLACE, window_, name, XCB_ATOM_STRING, 8,
            static_cast<std::uint32_t>(text.size()), text.data());
    };
    setText(XCB_ATOM_WM_NAME, "Velmora");
    setText(XCB_ATOM_WM_CLASS, QByteArrayView("strip\0velmora", 14));
    set(XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, std::array<std::uint32_t, 9>{kInputHint, 0});
    set(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS,
        std::array<std::uint32_t, 18>{
            kUserPlace | kUserSize | kLeastSize | kLargestSize,
            static_cast<std::uint32_t>(place.x()), static_cast<std::uint32_t>(place.y()), width,
            height, width, height, width, height});
    set(connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM,
        std::array{connection.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    set(connection.atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, std::array{kAllDesktops});
    const auto depth = static_cast<std::uint32_t>(strut.depth);
    set(connection.atom("_NET_WM_STRUT"), XCB_ATOM_CARDINAL,
        std::array<std::uint32_t, 4>{0, 0, depth});
    set(connection.atom("_NET_WM_STRUT_PARTIAL"), XCB_ATOM_CARDINAL,
        std::array<std::uint32_t, 12>{
            0, 0, depth, 0, 0, 0, 0, 0, static_cast<std::uint32_t>(strut.left),
            static_cast<std::uint32_t>(strut.right)});
    for (const xcb_shape_kind_t kind : {XCB_SHAPE_SK_BOUNDING, XCB_SHAPE_SK_INPUT})
        xcb_shape_rectangles(
            connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window_, 0, 0, 0,
            nullptr);
    xcb_map_window(connection, window_);
    xcb_flush(connection);
}

X11StripReservation::~X11StripReservation() {
    xcb_destroy_window(connection_, window_);
    xcb_flush(connection_);
}

} // namespace velmora
