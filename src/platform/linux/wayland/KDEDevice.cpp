#include "platform/linux/wayland/KDEDevice.h"

#include <utility>
#include <wayland-client.h>
#include <wayland-protocols/kde-output-device-v2.h>

#include "text/Base64.h"

namespace vantrel::wayland {

struct KDEDevice::Events {
    using Object = kde_output_device_v2;
    using ModeObject = kde_output_device_mode_v2;

    static KDEDevice& self(void* data) { return *static_cast<KDEDevice*>(data); }
    static Head& next(void* data) { return self(data).next_; }
    static ModeList<ModeObject>& modes(void* data) { return self(data).modes_; }

    static void geometry(void* data, Object*, std::int32_t x, std::int32_t y, std::int32_t, std::int32_t,
                         std::int32_t, const char* make, const char* model, std::int32_t transform) {
        Head& head = next(data);
        head.make = make;
        head.model = model;
        head.shape.position = Shape::Position{x, y};
        head.shape.transform = transform;
    }
    static void currentMode(void* data, Object*, ModeObject* mode) { modes(data).setCurrent(mode); }
    static void mode(void* data, Object*, ModeObject* mode) {
        modes(data).add(mode);
        kde_output_device_mode_v2_add_listener(mode, &modeListener, data);
    }
    static void done(void* data, Object*) { self(data).commit(); }
    static void scale(void* data, Object*, wl_fixed_t scale) { next(data).shape.scale = scale; }
    static void edid(void* data, Object*, const char* raw) {
        const std::string bytes = text::Base64::decode(raw).value_or("");
        next(data).edid.assign(bytes.begin(), bytes.end());
    }
    static void enabled(void* data, Object*, std::int32_t enabled) { next(data).isEnabled = enabled != 0; }
    static void variableRefresh(void* data, Object*, std::uint32_t policy) {
        next(data).shape.variableRefresh = static_cast<int>(policy);
    }
    static void name(void* data, Object*, const char* name) { next(data).name = name; }
    static void text(void*, Object*, const char*) {}
    static void number(void*, Object*, std::uint32_t) {}

    static void modeSize(void* data, ModeObject* mode, std::int32_t width, std::int32_t height) {
        modes(data).setSize(mode, width, height);
    }
    static void modeRefresh(void* data, ModeObject* mode, std::int32_t refresh) {
        modes(data).setRefresh(mode, refresh);
    }
    static void modePreferred(void* data, ModeObject* mode) { modes(data).prefer(mode); }
    static void modeRemoved(void* data, ModeObject* mode) { modes(data).remove(mode); }

    static constexpr kde_output_device_v2_listener listener = {
        .geometry = geometry,
        .current_mode = currentMode,
        .mode = mode,
        .done = done,
        .scale = scale,
        .edid = edid,
        .enabled = enabled,
        .uuid = text,
        .serial_number = text,
        .eisa_id = text,
        .capabilities = number,
        .overscan = number,
        .vrr_policy = variableRefresh,
        .rgb_range = number,
        .name = name,
    };
    static constexpr kde_output_device_mode_v2_listener modeListener = {modeSize, modeRefresh, modePreferred,
                                                                        modeRemoved};
};

KDEDevice::KDEDevice(Proxy<kde_output_device_v2> device) : object_(std::move(device)) {
    kde_output_device_v2_add_listener(object_.get(), &Events::listener, this);
}

void KDEDevice::commit() {
    modes_.describe(next_);
    told_ = next_;
}

}  // namespace vantrel::wayland
