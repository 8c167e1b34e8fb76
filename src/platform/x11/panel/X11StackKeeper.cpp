#include "platform/x11/panel/X11StackKeeper.h"

#include "platform/x11/base/WindowQueries.h"
#include "platform/x11/screens/PrimaryOutput.h"

#include <algorithm>
#include <array>
#include <span>

namespace velmora {
namespace {

/// The window types of what other programs pop up for a moment.
constexpr std::array transientTypes = {
    "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", "_NET_WM_WINDOW_TYPE_POPUP_MENU",
    "_NET_WM_WINDOW_TYPE_TOOLTIP", "_NET_WM_WINDOW_TYPE_COMBO", "_NET_WM_WINDOW_TYPE_DND"};

/// The extent with the border, of an event or a reply that tells it.
template<typename Told>
QRect frameOf(const Told& told) {
    return {
        told.x, told.y, told.width + 2 * told.border_width, told.height + 2 * told.border_width};
}

QRect readFrame(X11Connection& connection, xcb_window_t window) {
    const XcbOwned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return geometry ? frameOf(*geometry) : QRect();
}

std::vector<xcb_window_t> readChildren(X11Connection& connection, xcb_window_t window) {
    const XcbOwned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    if (!tree)
        return {};
    const auto* const first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

/// The requests about one window, sent together so that all answers take one round trip.
struct WindowQuery {
    WindowQuery(X11Connection& connection, xcb_window_t queried)
        : window(queried),
          attributes(xcb_get_window_attributes(connection, queried)),
          geometry(xcb_get_geometry(connection, queried)) {}

    xcb_window_t window;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
};

} // namespace

X11StackKeeper::X11StackKeeper(X11Connection& connection, xcb_window_t window)
    : connection_(connection),
      window_(window),
      subscription_(
          connection.subscribe([this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    clock_.start();
    checkTimer_.setSingleShot(true);
    checkTimer_.setTimerType(Qt::PreciseTimer);
    checkTimer_.callOnTimeout([this] { check(false); });
    alsoSelectEvents(connection, connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    frame_ = readFrame(connection, window);
    // What came above before the events were heard.
    scheduleCheck();
}

void X11StackKeeper::handleEvent(const xcb_generic_event_t& event) {
    switch (event.response_type & ~0x80) {
    case XCB_CREATE_NOTIFY:
        // A new window begins on top, unmapped.
        above_.insert(reinterpret_cast<const xcb_create_notify_event_t&>(event).window);
        break;
    case XCB_MAP_NOTIFY:
        if (above_.contains(reinterpret_cast<const xcb_map_notify_event_t&>(event).window))
            scheduleCheck();
        break;
    case XCB_UNMAP_NOTIFY:
        // With a locker goes the reason to leave what is above it alone.
        if (covering_.contains(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window))
            scheduleCheck();
        break;
    case XCB_DESTROY_NOTIFY:
        above_.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_REPARENT_NOTIFY:
    case XCB_CIRCULATE_NOTIFY:
        scheduleCheck();
        break;
    case XCB_CONFIGURE_NOTIFY:
        handleConfigured(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
        break;
    default:
        break;
    }
}

void X11StackKeeper::handleConfigured(const xcb_configure_notify_event_t& event) {
    if (event.event != connection_.root())
        return;
    if (event.window == window_) {
        frame_ = frameOf(event);
        scheduleCheck();
        return;
    }
    // What lies above the panel, or on something that does.
    if (event.above_sibling != window_ && !above_.contains(event.above_sibling)) {
        above_.erase(event.window);
        return;
    }
    above_.insert(event.window);
    if (frameOf(event).intersects(frame_) && !menus_.contains(event.window))
        scheduleCheck();
}

void X11StackKeeper::scheduleCheck() {
    if (!checkTimer_.isActive())
        checkTimer_.start(limiter_.delay(now()));
}

void X11StackKeeper::check(bool evenIfRaisedLately) {
    std::vector<WindowAbove> above;
    menus_.clear();
    for (const Covering& window : readCovering()) {
        above.push_back({window.id, judge(window)});
        if (above.back().cover == Cover::menu)
            menus_.insert(window.id);
    }
    const std::vector<Restacking> steps = restackings(window_, above);
    const bool mayRaise = evenIfRaisedLately || limiter_.delay(now()).count() == 0;
    limiter_.looked(now());
    if (steps.empty())
        return;
    if (!mayRaise) {
        scheduleCheck();
        return;
    }
    for (const Restacking& step : steps) {
        const std::uint32_t values[] = {step.sibling, XCB_STACK_MODE_ABOVE};
        const auto cookie = xcb_configure_window_checked(
            connection_, step.window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
            values);
        // Either may be gone by now; its end is heard of.
        xcb_discard_reply(connection_, cookie.sequence);
    }
    limiter_.raised(now());
    xcb_flush(connection_);
}

std::vector<X11StackKeeper::Covering> X11StackKeeper::readCovering() {
    above_.clear();
    covering_.clear();
    const std::vector<xcb_window_t> children = readChildren(connection_, connection_.root());
    auto child = std::find(children.begin(), children.end(), window_);
    if (child == children.end())
        return {};
    std::vector<WindowQuery> queries;
    while (++child != children.end()) {
        above_.insert(*child);
        queries.emplace_back(connection_, *child);
    }
    std::vector<Covering> covering;
    for (const WindowQuery& query : queries) {
        const XcbOwned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection_, query.attributes, nullptr));
        const XcbOwned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection_, query.geometry, nullptr));
        if (!attributes || !geometry || attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY ||
            attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
            !frameOf(*geometry).intersects(frame_))
            continue;
        covering_.insert(query.window);
        covering.push_back({query.window, frameOf(*geometry), attributes->override_redirect != 0});
    }
    return covering;
}

Cover X11StackKeeper::judge(const Covering& window) {
    if (!window.overrideRedirect)
        return Cover::intruder;
    // All windows of one client share the upper bits of their ids; Qt made the panel, too.
    const std::uint32_t clientBits = ~xcb_get_setup(connection_)->resource_id_mask;
    if ((window.id & clientBits) == (window_ & clientBits) || saysItIsTransient(window.id))
        return Cover::menu;
    return hidesTheScreen(window.frame) && !holdsAClient(window.id) ? Cover::locker
                                                                    : Cover::intruder;
}

bool X11StackKeeper::saysItIsTransient(xcb_window_t window) {
    const auto types = readProperty(connection_, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM);
    return std::any_of(transientTypes.begin(), transientTypes.end(), [&](const char* name) {
        return std::find(types.begin(), types.end(), connection_.atom(name)) != types.end();
    });
}

bool X11StackKeeper::hidesTheScreen(const QRect& frame) const {
    // Not the root window, which spans all screens: a locker may have a window on each.
    const auto output = readPrimaryOutput(connection_);
    const QRect screen(
        frame_.topLeft(),
        output ? output->size : readFrame(connection_, connection_.root()).size());
    return frame.contains(screen & frame_) && frame.height() >= screen.height();
}

bool X11StackKeeper::holdsAClient(xcb_window_t window) {
    // A window manager marks what it manages. Some put it into override-redirect frames.
    const xcb_atom_t state = connection_.atom("WM_STATE");
    const auto children = readChildren(connection_, window);
    return !readProperty(connection_, window, "WM_STATE", state).empty() ||
           std::any_of(children.begin(), children.end(), [this](xcb_window_t child) {
               return holdsAClient(child);
           });
}

} // namespace velmora
