#include "platform/x11/X11StackKeeper.h"

#include "platform/x11/PrimaryOutput.h"
#include "platform/x11/WindowQueries.h"

#include <algorithm>
#include <span>

namespace velmora {
namespace {

/// The window types of what other programs pop up for a moment.
std::vector<xcb_atom_t> transientTypes(X11Connection& connection) {
    std::vector<xcb_atom_t> types;
    for (const char* const name : {"DROPDOWN_MENU", "POPUP_MENU", "TOOLTIP", "COMBO", "DND"})
        types.push_back(connection.atom(QByteArray("_NET_WM_WINDOW_TYPE_") + name));
    return types;
}

/// The requests about one window, sent together so that all answers take one round trip.
struct WindowQuery {
    WindowQuery(X11Connection& connection, xcb_window_t queried)
        : window(queried),
          attributes(xcb_get_window_attributes(connection, queried)),
          geometry(xcb_get_geometry(connection, queried)),
          type(xcb_get_property(
              connection, false, queried, connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 0,
              8)) {}

    xcb_window_t window;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_get_property_cookie_t type;
};

/// The window's extent with its border.
QRect frameOf(const xcb_get_geometry_reply_t& geometry) {
    return {
        geometry.x, geometry.y, geometry.width + 2 * geometry.border_width,
        geometry.height + 2 * geometry.border_width};
}

bool hasTypeOf(const xcb_get_property_reply_t& property, const std::vector<xcb_atom_t>& types) {
    if (property.format != 32)
        return false;
    const std::span values(
        static_cast<const xcb_atom_t*>(xcb_get_property_value(&property)), property.value_len);
    return std::find_first_of(values.begin(), values.end(), types.begin(), types.end()) !=
           values.end();
}

} // namespace

X11StackKeeper::X11StackKeeper(X11Connection& connection, xcb_window_t window)
    : connection_(connection),
      window_(window),
      subscription_(
          connection.subscribe([this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    clock_.start();
    checkTimer_.setSingleShot(true);
    checkTimer_.callOnTimeout([this] { check(false); });
    alsoSelectEvents(connection, connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

void X11StackKeeper::handleEvent(const xcb_generic_event_t& event) {
    switch (event.response_type & ~0x80) {
    case XCB_CREATE_NOTIFY:
        // A new window begins on top, unmapped.
        above_.insert(reinterpret_cast<const xcb_create_notify_event_t&>(event).window);
        break;
    case XCB_DESTROY_NOTIFY:
        above_.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_MAP_NOTIFY:
    case XCB_REPARENT_NOTIFY:
    case XCB_CIRCULATE_NOTIFY:
        scheduleCheck();
        break;
    case XCB_CONFIGURE_NOTIFY: {
        // What lies below the panel comes above it only by landing on the panel itself or on
        // something above it; all else is a move or a restacking below.
        const auto& configured = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (configured.window == window_ || configured.above_sibling == window_ ||
            above_.contains(configured.above_sibling) || above_.contains(configured.window))
            scheduleCheck();
        break;
    }
    default:
        break;
    }
}

void X11StackKeeper::scheduleCheck() {
    if (!checkTimer_.isActive())
        checkTimer_.start(limiter_.delay(now()));
}

void X11StackKeeper::check(bool evenIfRaisedLately) {
    const std::vector<WindowAbove> above = readWindowsAbove();
    // As a rule, and after each raise of our own: four answers less to wait for.
    if (above.empty())
        return;
    const std::vector<std::uint32_t> raises =
        windowsToRaise(window_, readFrame(window_), readScreenSize().height(), above);
    if (raises.empty())
        return;
    if (!evenIfRaisedLately && limiter_.delay(now()).count() > 0) {
        scheduleCheck();
        return;
    }
    for (const std::uint32_t window : raises) {
        const std::uint32_t mode = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
    }
    limiter_.raised(now());
    xcb_flush(connection_);
}

std::vector<WindowAbove> X11StackKeeper::readWindowsAbove() {
    above_.clear();
    const XcbOwned<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        connection_, xcb_query_tree(connection_, connection_.root()), nullptr));
    if (!tree)
        return {};
    const std::span children(
        xcb_query_tree_children(tree.get()), xcb_query_tree_children_length(tree.get()));
    auto child = std::find(children.begin(), children.end(), window_);
    if (child == children.end())
        return {};
    std::vector<WindowQuery> queries;
    while (++child != children.end()) {
        above_.insert(*child);
        queries.emplace_back(connection_, *child);
    }

    // All windows of one client share the upper bits of their ids; Qt made the panel, too.
    const std::uint32_t clientBits = ~xcb_get_setup(connection_)->resource_id_mask;
    const std::vector<xcb_atom_t> types = transientTypes(connection_);
    std::vector<WindowAbove> above;
    for (const WindowQuery& query : queries) {
        const XcbOwned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection_, query.attributes, nullptr));
        const XcbOwned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection_, query.geometry, nullptr));
        const XcbOwned<xcb_get_property_reply_t> type(
            xcb_get_property_reply(connection_, query.type, nullptr));
        if (!attributes || !geometry || !type || attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY)
            continue;
        above.push_back(
            {.id = query.window,
             .frame = frameOf(*geometry),
             .viewable = attributes->map_state == XCB_MAP_STATE_VIEWABLE,
             .overrideRedirect = attributes->override_redirect != 0,
             .ours = (query.window & clientBits) == (window_ & clientBits),
             .transient = hasTypeOf(*type, types)});
    }
    return above;
}

QSize X11StackKeeper::readScreenSize() const {
    // Not the root window, which spans all screens: a locker may have a window on each.
    const auto output = readPrimaryOutput(connection_);
    return output ? output->size : readFrame(connection_.root()).size();
}

QRect X11StackKeeper::readFrame(xcb_window_t window) const {
    const XcbOwned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
    return geometry ? frameOf(*geometry) : QRect();
}

} // namespace velmora
