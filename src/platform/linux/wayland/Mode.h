// A size and rate in which a monitor can show a picture.
#pragma once

namespace vantrel::wayland {

struct Mode {
    int width = 0;
    int height = 0;
    // In mHz; 0 where the mode has no fixed rate.
    int refresh = 0;
    bool operator==(const Mode&) const = default;
};

}  // namespace vantrel::wayland
