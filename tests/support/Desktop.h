#pragma once

#include "support/XClient.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

/// Questions about the display in the environment, asked as any other client would.
namespace velmora::test {

bool hasWindowManager(const XClient& client);
/// The window that _NET_ACTIVE_WINDOW names, or 0.
xcb_window_t activeWindow(const XClient& client);
/// The window with the keyboard focus (0 none, 1 the one under the pointer).
xcb_window_t inputFocus(const XClient& client);

/// A child of the root window.
struct TopWindow {
    xcb_window_t id;
    QRect geometry;        ///< pixels, top-left origin
    bool mapped;           ///< and viewable
    bool overrideRedirect; ///< not managed by the window manager
    uint32_t processId;    ///< _NET_WM_PID, 0 without one
};
/// The children of the root window, lowest first.
std::vector<TopWindow> topWindows(const XClient& client);

/// Where a window is on the screen, its frame left out. Pixels.
QRect area(const XClient& client, xcb_window_t window);

/// What the screen shows (all of it when `area` is empty). Pixels, top-left origin.
QImage screenshot(const XClient& client, const QRect& area = {});
QRgb pixel(const XClient& client, const QPoint& place);

/// Sets the keyboard's layout ("fr", "us,ru", …) with setxkbmap and waits until it is in force.
void setLayout(const QString& layout);
/// Makes `group` (from 0) the layout in use.
void lockGroup(const XClient& client, uint8_t group);
/// Turns locked modifiers (Lock is 2, Mod2 is 16, …) on or off.
void lockModifiers(const XClient& client, uint8_t mask, bool on);

/// The core keyboard's state, to compare before with after.
struct KeyboardState {
    uint8_t modifiers; ///< in effect
    uint8_t base;      ///< held
    uint8_t latched;
    uint8_t locked;
    uint8_t group;
    bool operator==(const KeyboardState&) const = default;
};
KeyboardState keyboardState(const XClient& client);

/// The first input device of a type (XCB_INPUT_DEVICE_TYPE_…) that is not XTEST's own.
uint8_t inputDevice(const XClient& client, uint16_t type);
/// Whether any key or button is down on the session's keyboard and pointer.
bool isAnythingDown(const XClient& client);
/// Whether another client could grab the keyboard now: no switcher or menu holds it.
bool isKeyboardFree(const XClient& client);

} // namespace velmora::test
