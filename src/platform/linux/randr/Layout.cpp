#include "platform/linux/randr/Layout.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/linux/randr/Owned.h"

namespace vantrel::randr {
namespace {

using Resources = xcb_randr_get_screen_resources_current_reply_t;

std::uint32_t refreshOf(const xcb_randr_mode_info_t& mode) {
    std::uint64_t lines = mode.vtotal;
    if ((mode.mode_flags & XCB_RANDR_MODE_FLAG_DOUBLE_SCAN) != 0) lines *= 2;
    std::uint64_t clock = std::uint64_t{mode.dot_clock} * 1000;
    if ((mode.mode_flags & XCB_RANDR_MODE_FLAG_INTERLACE) != 0) clock *= 2;
    const std::uint64_t pixels = lines * mode.htotal;
    return pixels == 0 ? 0 : static_cast<std::uint32_t>((clock + pixels / 2) / pixels);
}

std::map<xcb_randr_mode_t, Mode> modesOf(const Resources& resources) {
    std::map<xcb_randr_mode_t, Mode> modes;
    std::string_view names(
        reinterpret_cast<const char*>(xcb_randr_get_screen_resources_current_names(&resources)),
        static_cast<std::size_t>(xcb_randr_get_screen_resources_current_names_length(&resources)));
    auto mode = xcb_randr_get_screen_resources_current_modes_iterator(&resources);
    for (; mode.rem > 0; xcb_randr_mode_info_next(&mode)) {
        const std::string_view name = names.substr(0, mode.data->name_len);
        names.remove_prefix(name.size());
        modes.emplace(mode.data->id,
                      Mode{std::string(name), mode.data->width, mode.data->height, refreshOf(*mode.data)});
    }
    return modes;
}

template <class Item>
std::vector<Item> list(const Item* items, int count) {
    return {items, items + count};
}

Layout::Output outputOf(xcb_randr_output_t id, const xcb_randr_get_output_info_reply_t& info) {
    Layout::Output output;
    output.id = id;
    output.name.assign(reinterpret_cast<const char*>(xcb_randr_get_output_info_name(&info)),
                       static_cast<std::size_t>(xcb_randr_get_output_info_name_length(&info)));
    // Some outputs can't tell.
    output.isConnected = info.connection != XCB_RANDR_CONNECTION_DISCONNECTED;
    output.crtc = info.crtc;
    output.possibleCrtcs =
        list(xcb_randr_get_output_info_crtcs(&info), xcb_randr_get_output_info_crtcs_length(&info));
    output.modes =
        list(xcb_randr_get_output_info_modes(&info), xcb_randr_get_output_info_modes_length(&info));
    return output;
}

Transform transformOf(const xcb_randr_get_crtc_transform_reply_t& reply) {
    const xcb_render_transform_t& rows = reply.current_transform;
    Transform transform;
    transform.matrix = {rows.matrix11, rows.matrix12, rows.matrix13, rows.matrix21, rows.matrix22,
                        rows.matrix23, rows.matrix31, rows.matrix32, rows.matrix33};
    transform.filter.assign(
        xcb_randr_get_crtc_transform_current_filter_name(&reply),
        static_cast<std::size_t>(xcb_randr_get_crtc_transform_current_filter_name_length(&reply)));
    transform.parameters = list(xcb_randr_get_crtc_transform_current_params(&reply),
                                xcb_randr_get_crtc_transform_current_params_length(&reply));
    return transform;
}

Picture::Panning panningOf(const xcb_randr_get_panning_reply_t& reply) {
    return {reply.left,        reply.top,        reply.width,        reply.height,
            reply.track_left,  reply.track_top,  reply.track_width,  reply.track_height,
            reply.border_left, reply.border_top, reply.border_right, reply.border_bottom};
}

Layout::Crtc crtcOf(xcb_randr_crtc_t id, const xcb_randr_get_crtc_info_reply_t& info) {
    Layout::Crtc crtc;
    crtc.id = id;
    crtc.mode = info.mode;
    crtc.picture.area = {info.x, info.y, info.width, info.height};
    crtc.picture.rotation = info.rotation;
    crtc.rotations = info.rotations;
    crtc.outputs =
        list(xcb_randr_get_crtc_info_outputs(&info), xcb_randr_get_crtc_info_outputs_length(&info));
    crtc.possibleOutputs =
        list(xcb_randr_get_crtc_info_possible(&info), xcb_randr_get_crtc_info_possible_length(&info));
    return crtc;
}

// The requests for one CRTC, sent before any is waited for.
struct CrtcQuestions {
    xcb_randr_crtc_t id;
    xcb_randr_get_crtc_info_cookie_t info;
    xcb_randr_get_crtc_transform_cookie_t transform;
    xcb_randr_get_panning_cookie_t panning;
};

// Nothing of a CRTC that is gone by now.
std::optional<Layout::Crtc> answer(xcb_connection_t* connection, const CrtcQuestions& asked) {
    const Owned<xcb_randr_get_crtc_info_reply_t> info(
        xcb_randr_get_crtc_info_reply(connection, asked.info, nullptr));
    const Owned<xcb_randr_get_crtc_transform_reply_t> transform(
        xcb_randr_get_crtc_transform_reply(connection, asked.transform, nullptr));
    const Owned<xcb_randr_get_panning_reply_t> panning(
        xcb_randr_get_panning_reply(connection, asked.panning, nullptr));
    if (!info) return std::nullopt;
    Layout::Crtc crtc = crtcOf(asked.id, *info);
    if (transform) crtc.picture.transform = transformOf(*transform);
    if (panning) crtc.picture.panning = panningOf(*panning);
    return crtc;
}

std::vector<Layout::Output> outputsOf(const Connection& connection, const Resources& resources) {
    const auto ids = list(xcb_randr_get_screen_resources_current_outputs(&resources),
                          xcb_randr_get_screen_resources_current_outputs_length(&resources));
    std::vector<xcb_randr_get_output_info_cookie_t> asked;
    asked.reserve(ids.size());
    for (const auto id : ids) {
        asked.push_back(xcb_randr_get_output_info(connection.get(), id, resources.config_timestamp));
    }
    std::vector<Layout::Output> outputs;
    for (std::size_t index = 0; index < ids.size(); ++index) {
        const Owned<xcb_randr_get_output_info_reply_t> info(
            xcb_randr_get_output_info_reply(connection.get(), asked[index], nullptr));
        if (info) outputs.push_back(outputOf(ids[index], *info));
    }
    return outputs;
}

std::vector<Layout::Crtc> crtcsOf(const Connection& connection, const Resources& resources) {
    const auto ids = list(xcb_randr_get_screen_resources_current_crtcs(&resources),
                          xcb_randr_get_screen_resources_current_crtcs_length(&resources));
    xcb_connection_t* const server = connection.get();
    std::vector<CrtcQuestions> asked;
    asked.reserve(ids.size());
    for (const auto id : ids) {
        asked.push_back({id, xcb_randr_get_crtc_info(server, id, resources.config_timestamp),
                         xcb_randr_get_crtc_transform(server, id), xcb_randr_get_panning(server, id)});
    }
    std::vector<Layout::Crtc> crtcs;
    for (const CrtcQuestions& questions : asked) {
        if (auto crtc = answer(server, questions)) crtcs.push_back(std::move(*crtc));
    }
    return crtcs;
}

template <class Items, class Matches>
const typename Items::value_type* find(const Items& items, Matches matches) {
    const auto found = std::find_if(items.begin(), items.end(), matches);
    return found == items.end() ? nullptr : &*found;
}

}  // namespace

std::optional<Layout> Layout::read(const Connection& connection) {
    xcb_connection_t* const server = connection.get();
    const xcb_window_t root = connection.root();
    const auto resourcesAsked = xcb_randr_get_screen_resources_current(server, root);
    const auto primaryAsked = xcb_randr_get_output_primary(server, root);
    const auto sizeAsked = xcb_get_geometry(server, root);
    const auto rangeAsked = xcb_randr_get_screen_size_range(server, root);
    const Owned<Resources> resources(
        xcb_randr_get_screen_resources_current_reply(server, resourcesAsked, nullptr));
    const Owned<xcb_randr_get_output_primary_reply_t> primary(
        xcb_randr_get_output_primary_reply(server, primaryAsked, nullptr));
    const Owned<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(server, sizeAsked, nullptr));
    const Owned<xcb_randr_get_screen_size_range_reply_t> range(
        xcb_randr_get_screen_size_range_reply(server, rangeAsked, nullptr));
    if (!resources || !primary || !size || !range) return std::nullopt;

    Layout layout;
    layout.configured = resources->config_timestamp;
    layout.primary = primary->output;
    layout.width = size->width;
    layout.height = size->height;
    layout.mostWidth = range->max_width;
    layout.mostHeight = range->max_height;
    layout.modes = modesOf(*resources);
    layout.outputs = outputsOf(connection, *resources);
    layout.crtcs = crtcsOf(connection, *resources);
    for (Crtc& crtc : layout.crtcs) {
        const auto mode = layout.modes.find(crtc.mode);
        if (mode != layout.modes.end()) crtc.picture.mode = mode->second;
    }
    if (!connection.isAlive()) return std::nullopt;
    return layout;
}

const Layout::Output* Layout::output(const std::string& name) const {
    return find(outputs, [&](const Output& output) { return output.name == name; });
}

const Layout::Output* Layout::output(xcb_randr_output_t id) const {
    return find(outputs, [&](const Output& output) { return output.id == id; });
}

const Layout::Crtc* Layout::crtc(xcb_randr_crtc_t id) const {
    return find(crtcs, [&](const Crtc& crtc) { return crtc.id == id; });
}

const Layout::Crtc* Layout::crtcOf(const Output& output) const {
    const Crtc* const found = output.crtc == XCB_NONE ? nullptr : crtc(output.crtc);
    return found != nullptr && found->mode != XCB_NONE ? found : nullptr;
}

std::optional<Placement> Layout::placement(const Output& output) const {
    const Crtc* const shown = crtcOf(output);
    if (shown == nullptr) return std::nullopt;
    Placement placement;
    placement.picture = shown->picture;
    placement.isPrimary = primary == output.id;
    placement.crtc = shown->id;
    for (const Output& other : outputs) {
        const Crtc* const theirs = crtcOf(other);
        if (theirs != nullptr && other.id != output.id &&
            theirs->picture.area.overlaps(shown->picture.area)) {
            placement.shared.push_back(other.name);
        }
    }
    return placement;
}

}  // namespace vantrel::randr
