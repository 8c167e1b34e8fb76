#include "platform/x11/screens/PrimaryOutput.h"

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/base/Xcb.h"

#include <QList>
#include <cstring>

namespace velmora {
namespace {

/// `output` when it shows something.
std::optional<PrimaryOutput>
readOutput(X11Connection& connection, xcb_randr_output_t output, xcb_timestamp_t configuration) {
    const XcbOwned<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
        connection, xcb_randr_get_output_info(connection, output, configuration), nullptr));
    if (!info || info->crtc == XCB_NONE)
        return {};
    const XcbOwned<xcb_randr_get_crtc_info_reply_t> crtc(xcb_randr_get_crtc_info_reply(
        connection, xcb_randr_get_crtc_info(connection, info->crtc, configuration), nullptr));
    if (!crtc || crtc->width == 0 || crtc->height == 0)
        return {};
    return PrimaryOutput{
        .output = output,
        .size = {crtc->width, crtc->height},
        .upright = crtc->rotation == XCB_RANDR_ROTATION_ROTATE_0};
}

} // namespace

std::optional<PrimaryOutput> readPrimaryOutput(X11Connection& connection) {
    if (!findExtension(connection, xcb_randr_id))
        return {};
    const auto resourcesCookie =
        xcb_randr_get_screen_resources_current(connection, connection.root());
    const auto primaryCookie = xcb_randr_get_output_primary(connection, connection.root());
    const XcbOwned<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(connection, resourcesCookie, nullptr));
    const XcbOwned<xcb_randr_get_output_primary_reply_t> primary(
        xcb_randr_get_output_primary_reply(connection, primaryCookie, nullptr));
    if (!resources)
        return {};
    const xcb_randr_output_t* const first =
        xcb_randr_get_screen_resources_current_outputs(resources.get());
    QList<xcb_randr_output_t> candidates(
        first, first + xcb_randr_get_screen_resources_current_outputs_length(resources.get()));
    if (primary && primary->output != XCB_NONE)
        candidates.prepend(primary->output);
    for (const xcb_randr_output_t output : candidates) {
        if (const auto shown = readOutput(connection, output, resources->config_timestamp))
            return shown;
    }
    return {};
}

std::vector<std::uint32_t>
readOutputCardinals(X11Connection& connection, xcb_randr_output_t output, const QByteArray& name) {
    constexpr std::uint32_t maximumLength = 16;
    const auto cookie = xcb_randr_get_output_property(
        connection, output, connection.atom(name), XCB_ATOM_CARDINAL, 0, maximumLength, false,
        false);
    const XcbOwned<xcb_randr_get_output_property_reply_t> reply(
        xcb_randr_get_output_property_reply(connection, cookie, nullptr));
    if (!reply || reply->type != XCB_ATOM_CARDINAL || reply->format != 32)
        return {};
    // The data is that of 32-bit numbers, though xcb types it as bytes.
    const auto* const bytes = xcb_randr_get_output_property_data(reply.get());
    std::vector<std::uint32_t> numbers(reply->num_items);
    std::memcpy(numbers.data(), bytes, numbers.size() * sizeof(std::uint32_t));
    return numbers;
}

} // namespace velmora
