#include "platform/linux/wayland/CoreOutput.h"

#include <utility>
#include <wayland-client.h>

namespace vantrel::wayland {

struct CoreOutput::Events {
    static Description& next(void* data) { return static_cast<CoreOutput*>(data)->next_; }

    static void geometry(void* data, wl_output*, std::int32_t x, std::int32_t y, std::int32_t, std::int32_t,
                         std::int32_t, const char* make, const char* model, std::int32_t transform) {
        Description& output = next(data);
        output.make = make;
        output.model = model;
        output.shape.position = Shape::Position{x, y};
        output.shape.transform = transform;
    }
    static void mode(void* data, wl_output*, std::uint32_t flags, std::int32_t width, std::int32_t height,
                     std::int32_t refresh) {
        if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) next(data).shape.mode = Mode{width, height, refresh};
    }
    static void scale(void* data, wl_output*, std::int32_t factor) {
        next(data).shape.scale = wl_fixed_from_int(factor);
    }
    static void name(void* data, wl_output*, const char* name) { next(data).name = name; }
    static void description(void* data, wl_output*, const char* text) { next(data).description = text; }
    static void done(void* data, wl_output*) { static_cast<CoreOutput*>(data)->told_ = next(data); }

    static constexpr wl_output_listener listener = {geometry, mode, done, scale, name, description};
};

CoreOutput::CoreOutput(Proxy<wl_output> output) : output_(std::move(output)) {
    wl_output_add_listener(output_.get(), &Events::listener, this);
}

void CoreOutput::useGammaControl(Connection& connection, zwlr_gamma_control_manager_v1* manager) {
    table_.emplace(connection, manager, output_.get());
}

}  // namespace vantrel::wayland
