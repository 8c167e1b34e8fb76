#pragma once

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/panel/PanelPlacement.h"

#include <functional>
#include <map>
#include <unordered_set>
#include <vector>

namespace velmora {

/// The docks of other clients, as the desktop's panels are, and what they reserve at the top.
/// Follows them as they come, change and go; what other windows do asks the server nothing more
/// than who is new. Main thread only.
class X11Docks {
public:
    /// Looks at once. `changed` is called from then on when struts() gives something else.
    X11Docks(X11Connection& connection, std::function<void()> changed);

    const QList<TopStrut>& struts() const { return struts_; }

private:
    void handle(const xcb_generic_event_t& event);
    void handleProperty(const xcb_property_notify_event_t& change);
    void readClients();
    /// Some window managers frame docks and leave them out of their list.
    void readFrames();
    void readNew(std::vector<xcb_window_t> windows);
    void collect();

    X11Connection& connection_;
    const std::function<void()> changed_;
    std::unordered_set<xcb_window_t> clients_; ///< all that the window manager names
    std::map<xcb_window_t, TopStrut> docks_;   ///< those of them that are docks
    QList<TopStrut> struts_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora
