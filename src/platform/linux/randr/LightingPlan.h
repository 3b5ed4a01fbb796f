// A way to give a dark output a picture, without moving any other.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/linux/randr/Layout.h"

namespace vantrel::randr {

struct LightingPlan {
    xcb_randr_crtc_t crtc = XCB_NONE;
    xcb_randr_mode_t mode = XCB_NONE;
    Picture picture;
    // All that the CRTC shows then.
    std::vector<xcb_randr_output_t> outputs;
    // Of the screen.
    std::int32_t width = 0;
    std::int32_t height = 0;
    // Whether the table that the CRTC holds is this output's.
    bool isTableOurs = false;

    // The best first: as it was, as far as that still fits, or in a mode of its own, the
    // preferred one first, right of all others. None when the output is lit.
    static std::vector<LightingPlan> all(const Layout& layout, const Layout::Output& output,
                                         const std::optional<Placement>& before);
};

}  // namespace vantrel::randr
