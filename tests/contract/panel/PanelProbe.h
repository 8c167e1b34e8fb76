#pragma once

#include "support/Desktop.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace velmora::test {

/// Panel content that is red at its left end and blue at its right one and counts presses.
class GradientView : public QWidget {
public:
    int presses = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QLinearGradient gradient(0, 0, width(), 0);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        QPainter(this).fillRect(rect(), gradient);
    }
    void mousePressEvent(QMouseEvent* event) override {
        ++presses;
        event->accept();
    }
};

/// Whether `color` is one of the gradient's: no green, red and blue to the full together.
inline bool isGradient(QRgb color) {
    return qGreen(color) == 0 && std::abs(qRed(color) + qBlue(color) - 255) <= 2;
}

/// An override-redirect window of another program, green.
class Popup {
public:
    explicit Popup(const QRect& frame = {600, 0, 200, 100}) : id(xcb_generate_id(client)) {
        const uint32_t values[] = {0x00ff00, 1};
        xcb_create_window(
            client, XCB_COPY_FROM_PARENT, id, client.root(), static_cast<int16_t>(frame.x()),
            static_cast<int16_t>(frame.y()), static_cast<uint16_t>(frame.width()),
            static_cast<uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
            XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    }

    /// "TOOLTIP" …
    void setType(const QByteArray& type) {
        const xcb_atom_t atom = client.atom("_NET_WM_WINDOW_TYPE_" + type);
        xcb_change_property(
            client, XCB_PROP_MODE_REPLACE, id, client.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM,
            32, 1, &atom);
    }
    /// A window in a window in it; with `managed` as a window manager marks an application's.
    void addDescendant(bool managed) {
        xcb_window_t window = id;
        for (int depth = 0; depth < 2; ++depth) {
            const xcb_window_t child = xcb_generate_id(client);
            xcb_create_window(
                client, XCB_COPY_FROM_PARENT, child, window, 0, 0, 10, 10, 0,
                XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
            window = child;
        }
        const xcb_atom_t state = client.atom("WM_STATE");
        const uint32_t normal[] = {1, 0};
        if (managed)
            xcb_change_property(client, XCB_PROP_MODE_REPLACE, window, state, state, 32, 2, normal);
    }
    void map() {
        xcb_map_window(client, id);
        client.sync();
    }
    void moveTo(const QPoint& place) {
        const uint32_t values[] = {uint32_t(place.x()), uint32_t(place.y())};
        xcb_configure_window(client, id, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
        client.sync();
    }
    void raise() {
        const uint32_t mode = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(client, id, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
        client.sync();
    }

    XClient client;
    const xcb_window_t id;
};

/// The place of `window` among the root's children from the lowest; -1 when it is not mapped.
inline int stackPosition(const XClient& client, xcb_window_t window) {
    const auto all = topWindows(client);
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& top) { return top.id == window; });
    return found != all.end() && found->mapped ? static_cast<int>(found - all.begin()) : -1;
}

} // namespace velmora::test
