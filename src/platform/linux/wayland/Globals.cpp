#include "platform/linux/wayland/Globals.h"

#include <algorithm>
#include <wayland-client.h>
#include <wayland-protocols/kde-output-device-v2.h>
#include <wayland-protocols/kde-output-management-v2.h>
#include <wayland-protocols/wlr-gamma-control-unstable-v1.h>
#include <wayland-protocols/wlr-output-management-unstable-v1.h>

namespace vantrel::wayland {

struct Globals::Events {
    static constexpr wl_registry_listener listener = {
        [](void* data, wl_registry*, std::uint32_t number, const char* interface, std::uint32_t version) {
            static_cast<Globals*>(data)->add(number, interface, version);
        },
        [](void* data, wl_registry*, std::uint32_t number) { static_cast<Globals*>(data)->remove(number); }};
};

Globals::Globals(Connection& connection, bool wantsTables)
    : connection_(connection),
      wantsTables_(wantsTables),
      registry_(wl_display_get_registry(connection.display())),
      kde_(connection) {
    wl_registry_add_listener(registry_.get(), &Events::listener, this);
}

CoreOutput* Globals::output(std::string_view name) {
    const auto found = std::find_if(outputs_.begin(), outputs_.end(), [name](const auto& output) {
        return output.second.description().name == name;
    });
    return found != outputs_.end() ? &found->second : nullptr;
}

OutputManagement* Globals::management() {
    if (wlr_) return &*wlr_;
    return kde_.isUsable() ? &kde_ : nullptr;
}

template <class Object, class Interface>
Proxy<Object> Globals::bind(std::uint32_t number, const Interface& interface, std::uint32_t version) {
    ++bindings_;
    return Proxy<Object>(
        static_cast<Object*>(wl_registry_bind(registry_.get(), number, &interface, version)));
}

void Globals::add(std::uint32_t number, std::string_view interface, std::uint32_t version) {
    if (interface == wl_output_interface.name && version >= CoreOutput::neededVersion) {
        const auto output = outputs_.try_emplace(
            number, bind<wl_output>(number, wl_output_interface, CoreOutput::neededVersion));
        if (gamma_) output.first->second.useGammaControl(connection_, gamma_.get());
    } else if (interface == zwlr_gamma_control_manager_v1_interface.name && wantsTables_ && !gamma_) {
        gammaNumber_ = number;
        gamma_ = bind<zwlr_gamma_control_manager_v1>(number, zwlr_gamma_control_manager_v1_interface, 1);
        for (auto& [ignored, output] : outputs_) output.useGammaControl(connection_, gamma_.get());
    } else if (interface == zwlr_output_manager_v1_interface.name && !wlr_) {
        wlrNumber_ = number;
        wlr_.emplace(connection_,
                     bind<zwlr_output_manager_v1>(number, zwlr_output_manager_v1_interface,
                                                  std::min(version, WlrOutputManagement::version)));
    } else if (interface == kde_output_management_v2_interface.name && !kde_.isUsable()) {
        kdeNumber_ = number;
        kde_.use(bind<kde_output_management_v2>(number, kde_output_management_v2_interface, 1));
    } else if (interface == kde_output_device_v2_interface.name && version >= KDEDevice::neededVersion) {
        kde_.add(number, bind<kde_output_device_v2>(number, kde_output_device_v2_interface,
                                                    KDEDevice::neededVersion));
    }
}

void Globals::remove(std::uint32_t number) {
    outputs_.erase(number);
    kde_.remove(number);
    if (number == gammaNumber_) {
        for (auto& [ignored, output] : outputs_) output.loseGammaControl();
        gamma_.reset();
    }
    if (number == wlrNumber_) wlr_.reset();
    if (number == kdeNumber_) kde_.use(nullptr);
}

}  // namespace vantrel::wayland
