#pragma once

#include <memory>

class QWidget;

namespace velmora {

/// What is asked of a panel.
struct PanelRequest {
    double height = 0; ///< points
    /// Seen, and feeling clicks; else neither, though its window stays where it is.
    bool presented = true;
    /// Below what the desktop's own panels reserve there, else at the very edge.
    bool belowDocks = true;
    /// While presented it keeps maximised windows below itself.
    bool reservesStrip = false;

    bool operator==(const PanelRequest&) const = default;
};

/// A strip along the top edge of the primary screen: above ordinary and full-screen windows, below
/// menus and screen lockers, on every workspace, never taking the keyboard focus. Main thread only.
class Panel {
public:
    virtual ~Panel() = default;

    /// Carries out all of the request at once, on the primary screen as it is now, and follows the
    /// screen and the desktop's panels from then on; without a screen the panel is not seen.
    /// Nothing is seen before the first request.
    virtual void request(const PanelRequest& request) = 0;
};

/// Makes panels.
class Panels {
public:
    virtual ~Panels() = default;

    /// A panel filled with `view`, which is resized with it.
    virtual std::unique_ptr<Panel> create(std::unique_ptr<QWidget> view) = 0;
};

} // namespace velmora
