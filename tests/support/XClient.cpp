#include "support/XClient.h"

#include <stdexcept>

namespace velmora::test {

XClient::XClient() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_))
        throw std::runtime_error("cannot reach the display");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

xcb_atom_t XClient::atom(const QByteArray& name) const {
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection_,
        xcb_intern_atom(connection_, false, static_cast<uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void XClient::sync() const {
    Reply<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

std::vector<uint32_t> XClient::property(xcb_window_t window, const QByteArray& name) const {
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection_,
        xcb_get_property(connection_, false, window, atom(name), XCB_ATOM_ANY, 0, 4096), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

} // namespace velmora::test
