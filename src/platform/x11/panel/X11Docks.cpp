#include "platform/x11/panel/X11Docks.h"

#include "platform/x11/base/WindowQueries.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace velmora {
namespace {

constexpr char kClientList[] = "_NET_CLIENT_LIST";
constexpr char kPartialStrut[] = "_NET_WM_STRUT_PARTIAL";
constexpr char kStrut[] = "_NET_WM_STRUT";
constexpr char kType[] = "_NET_WM_WINDOW_TYPE";
constexpr char kDock[] = "_NET_WM_WINDOW_TYPE_DOCK";

/// The questions about one window, sent together so that all answers take one round trip.
class DockQuery {
public:
    DockQuery(X11Connection& connection, xcb_window_t window)
        : connection_(connection),
          type_(ask(window, kType, XCB_ATOM_ATOM)),
          partial_(ask(window, kPartialStrut, XCB_ATOM_CARDINAL)),
          strut_(ask(window, kStrut, XCB_ATOM_CARDINAL)) {}

    /// The window's strut, with a depth of 0 where it reserves nothing at the top; nothing for a
    /// window that is no dock. Waits for the server. Call once.
    std::optional<TopStrut> answer() {
        const auto types = values(type_);
        const auto partial = values(partial_);
        const auto strut = values(strut_);
        // Of either the third number is the room at the top; the ninth and tenth of the longer one
        // are the columns.
        if (partial.size() == 12)
            return TopStrut{pixels(partial[2]), pixels(partial[8]), pixels(partial[9])};
        if (strut.size() == 4)
            return TopStrut{pixels(strut[2]), 0, INT_MAX};
        if (std::ranges::find(types, connection_.atom(kDock)) != types.end())
            return TopStrut{};
        return {};
    }

private:
    xcb_get_property_cookie_t ask(xcb_window_t window, const char* name, xcb_atom_t type) {
        constexpr std::uint32_t longest = 32;
        return xcb_get_property(
            connection_, false, window, connection_.atom(name), type, 0, longest);
    }
    std::vector<std::uint32_t> values(xcb_get_property_cookie_t cookie) {
        const XcbOwned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_, cookie, nullptr));
        if (!reply || reply->format != 32)
            return {};
        const auto* const first =
            static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {first, first + reply->value_len};
    }
    static int pixels(std::uint32_t value) {
        return static_cast<int>(std::min<std::uint32_t>(value, INT_MAX));
    }

    X11Connection& connection_;
    xcb_get_property_cookie_t type_, partial_, strut_;
};

} // namespace

X11Docks::X11Docks(X11Connection& connection, std::function<void()> changed)
    : connection_(connection),
      changed_(std::move(changed)),
      subscription_(
          connection.subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
    connection.prepareAtoms({kClientList, kPartialStrut, kStrut, kType, kDock});
    alsoSelectEvents(
        connection, connection.root(),
        static_cast<xcb_event_mask_t>(
            XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY));
    readClients();
    readFrames();
    collect();
}

void X11Docks::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & ~0x80) {
    case XCB_PROPERTY_NOTIFY:
        handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
        break;
    case XCB_REPARENT_NOTIFY: {
        const auto& framed = reinterpret_cast<const xcb_reparent_notify_event_t&>(event);
        if (framed.event != connection_.root() || framed.parent == connection_.root())
            return;
        readNew({framed.window});
        break;
    }
    case XCB_UNMAP_NOTIFY: {
        // What is on the list stays there for as long as it reserves something.
        const auto& gone = reinterpret_cast<const xcb_unmap_notify_event_t&>(event);
        if (gone.event != gone.window || clients_.contains(gone.window))
            return;
        docks_.erase(gone.window);
        break;
    }
    default:
        return;
    }
    const QList<TopStrut> before = struts_;
    collect();
    if (struts_ != before)
        changed_();
}

void X11Docks::handleProperty(const xcb_property_notify_event_t& change) {
    if (change.window == connection_.root() && change.atom == connection_.atom(kClientList))
        readClients();
    else if (
        docks_.contains(change.window) &&
        (change.atom == connection_.atom(kPartialStrut) || change.atom == connection_.atom(kStrut)))
        docks_[change.window] = DockQuery(connection_, change.window).answer().value_or(TopStrut());
}

void X11Docks::readClients() {
    const auto windows =
        readProperty(connection_, connection_.root(), kClientList, XCB_ATOM_WINDOW);
    const std::unordered_set<xcb_window_t> known =
        std::exchange(clients_, {windows.begin(), windows.end()});
    std::erase_if(docks_, [&](const auto& dock) {
        return known.contains(dock.first) && !clients_.contains(dock.first);
    });
    std::vector<xcb_window_t> fresh;
    std::ranges::copy_if(clients_, std::back_inserter(fresh), [&](xcb_window_t window) {
        return !known.contains(window);
    });
    readNew(fresh);
}

void X11Docks::readFrames() {
    const auto ask = [this](xcb_window_t window) { return xcb_query_tree(connection_, window); };
    const auto children = [this](xcb_query_tree_cookie_t question) -> std::vector<xcb_window_t> {
        const XcbOwned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection_, question, nullptr));
        if (!tree)
            return {};
        const auto* const first = xcb_query_tree_children(tree.get());
        return {first, first + xcb_query_tree_children_length(tree.get())};
    };
    std::vector<xcb_query_tree_cookie_t> questions;
    for (const xcb_window_t frame : children(ask(connection_.root())))
        questions.push_back(ask(frame));
    std::vector<xcb_window_t> unlisted;
    for (const xcb_query_tree_cookie_t question : questions) {
        std::ranges::copy_if(
            children(question), std::back_inserter(unlisted),
            [this](xcb_window_t window) { return !clients_.contains(window); });
    }
    readNew(unlisted);
}

void X11Docks::readNew(std::vector<xcb_window_t> windows) {
    const auto* const setup = xcb_get_setup(connection_);
    std::erase_if(windows, [setup](xcb_window_t window) {
        return (window & ~setup->resource_id_mask) == setup->resource_id_base; // ours
    });
    const auto forEach = [this](const std::vector<xcb_window_t>& asked, const auto& use) {
        std::vector<DockQuery> queries;
        for (const xcb_window_t window : asked)
            queries.emplace_back(connection_, window);
        for (std::size_t i = 0; i < asked.size(); ++i) {
            if (const std::optional<TopStrut> strut = queries[i].answer())
                use(asked[i], *strut);
        }
    };
    std::vector<xcb_window_t> docks;
    forEach(windows, [&](xcb_window_t window, const TopStrut&) { docks.push_back(window); });
    for (const xcb_window_t dock : docks)
        alsoSelectEvents(
            connection_, dock,
            static_cast<xcb_event_mask_t>(
                XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY));
    // Again, now that changes are told.
    forEach(docks, [this](xcb_window_t window, const TopStrut& strut) { docks_[window] = strut; });
}

void X11Docks::collect() {
    struts_.clear();
    for (const auto& [window, strut] : docks_) {
        if (strut.depth > 0)
            struts_.append(strut);
    }
}

} // namespace velmora
