#pragma once

#include "support/XClient.h"

#include <QRect>

namespace velmora::test {

/// The application in front: an ordinary window of another client that has the keyboard focus and
/// writes down what reaches it.
class Witness {
public:
    /// One key, button or focus event as it came.
    struct Event {
        uint8_t type;   ///< XCB_KEY_PRESS …; focus events too
        uint8_t detail; ///< keycode, button, or the focus event's detail
        uint16_t state; ///< modifiers and buttons just before it; the mode of a focus event
    };

    /// Maps the window and takes the focus; throws when it cannot. Pixels.
    explicit Witness(const QRect& geometry = QRect(100, 200, 400, 300));
    ~Witness();

    xcb_window_t window() const { return window_; }

    /// Marks the window as one that the user works in at this moment, as toolkits do at each key
    /// press: what makes window managers keep other windows from the focus.
    void markAsInUse() const;

    /// What has arrived so far, all of what the server sent before this call included.
    const std::vector<Event>& events();
    /// The same, only key presses and releases.
    std::vector<Event> keys();
    /// Waits until at least `count` key and button events are there.
    bool waitForInput(size_t count);
    /// Forgets what came so far.
    void clear();

private:
    void record(const xcb_generic_event_t& event);
    void readArrived();

    XClient client_;
    xcb_window_t window_;
    std::vector<Event> events_;
};

} // namespace velmora::test
