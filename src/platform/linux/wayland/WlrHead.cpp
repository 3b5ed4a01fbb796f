#include "platform/linux/wayland/WlrHead.h"

#include <cstdint>
#include <utility>
#include <wayland-client.h>
#include <wayland-protocols/wlr-output-management-unstable-v1.h>

namespace vantrel::wayland {

struct WlrHead::Events {
    using Object = zwlr_output_head_v1;
    using ModeObject = zwlr_output_mode_v1;

    static WlrHead& self(void* data) { return *static_cast<WlrHead*>(data); }
    static Head& next(void* data) { return self(data).next_; }
    static ModeList<ModeObject>& modes(void* data) { return self(data).modes_; }

    static void name(void* data, Object*, const char* name) { next(data).name = name; }
    static void description(void* data, Object*, const char* text) { next(data).description = text; }
    static void physicalSize(void*, Object*, std::int32_t, std::int32_t) {}
    static void mode(void* data, Object*, ModeObject* mode) {
        modes(data).add(mode);
        zwlr_output_mode_v1_add_listener(mode, &modeListener, data);
    }
    static void enabled(void* data, Object*, std::int32_t enabled) { next(data).isEnabled = enabled != 0; }
    static void currentMode(void* data, Object*, ModeObject* mode) { modes(data).setCurrent(mode); }
    static void position(void* data, Object*, std::int32_t x, std::int32_t y) {
        next(data).shape.position = Shape::Position{x, y};
    }
    static void transform(void* data, Object*, std::int32_t transform) {
        next(data).shape.transform = transform;
    }
    static void scale(void* data, Object*, wl_fixed_t scale) { next(data).shape.scale = scale; }
    static void finished(void* data, Object*) { self(data).isGone_ = true; }
    static void make(void* data, Object*, const char* make) { next(data).make = make; }
    static void model(void* data, Object*, const char* model) { next(data).model = model; }
    static void serialNumber(void*, Object*, const char*) {}

    static void modeSize(void* data, ModeObject* mode, std::int32_t width, std::int32_t height) {
        modes(data).setSize(mode, width, height);
    }
    static void modeRefresh(void* data, ModeObject* mode, std::int32_t refresh) {
        modes(data).setRefresh(mode, refresh);
    }
    static void modePreferred(void* data, ModeObject* mode) { modes(data).prefer(mode); }
    static void modeFinished(void* data, ModeObject* mode) { modes(data).remove(mode); }

    static constexpr zwlr_output_head_v1_listener listener = {
        name,      description, physicalSize, mode, enabled, currentMode, position,
        transform, scale,       finished,     make, model,   serialNumber};
    static constexpr zwlr_output_mode_v1_listener modeListener = {modeSize, modeRefresh, modePreferred,
                                                                  modeFinished};
};

WlrHead::WlrHead(Proxy<zwlr_output_head_v1> head) : object_(std::move(head)) {
    zwlr_output_head_v1_add_listener(object_.get(), &Events::listener, this);
}

void WlrHead::commit() {
    modes_.describe(next_);
    told_ = next_;
}

}  // namespace vantrel::wayland
