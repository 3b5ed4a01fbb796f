// What the X server says of its outputs, CRTCs and modes at one moment. Looks at no cable:
// the server is told by the kernel when something is plugged in.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/randr/Connection.h"
#include "platform/linux/randr/Picture.h"
#include "platform/linux/randr/Placement.h"

namespace vantrel::randr {

struct Layout {
    struct Crtc {
        xcb_randr_crtc_t id = XCB_NONE;
        // None: it shows nothing.
        xcb_randr_mode_t mode = XCB_NONE;
        Picture picture;
        // Those that it can do.
        std::uint16_t rotations = 0;
        std::vector<xcb_randr_output_t> outputs;
        std::vector<xcb_randr_output_t> possibleOutputs;
    };
    struct Output {
        xcb_randr_output_t id = XCB_NONE;
        std::string name;
        bool isConnected = false;
        // None while it is dark.
        xcb_randr_crtc_t crtc = XCB_NONE;
        std::vector<xcb_randr_crtc_t> possibleCrtcs;
        // The preferred ones first.
        std::vector<xcb_randr_mode_t> modes;
    };

    xcb_timestamp_t configured = XCB_CURRENT_TIME;
    xcb_randr_output_t primary = XCB_NONE;
    // The screen's size, and the largest that it can have.
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t mostWidth = 0;
    std::int32_t mostHeight = 0;
    // All in the server's order.
    std::vector<Output> outputs;
    std::vector<Crtc> crtcs;
    std::map<xcb_randr_mode_t, Mode> modes;

    static std::optional<Layout> read(const Connection& connection);

    // Null when there is none.
    const Output* output(const std::string& name) const;
    const Output* output(xcb_randr_output_t id) const;
    const Crtc* crtc(xcb_randr_crtc_t id) const;
    // The CRTC that shows its picture; null while it is dark.
    const Crtc* crtcOf(const Output& output) const;
    // Nothing while it is dark.
    std::optional<Placement> placement(const Output& output) const;
};

}  // namespace vantrel::randr
