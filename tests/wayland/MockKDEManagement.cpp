#include "wayland/MockKDEManagement.h"

#include <utility>
#include <wayland-server-protocols/kde-output-device-v2.h>
#include <wayland-server-protocols/kde-output-management-v2.h>

#include "wayland/MockObject.h"

namespace vantrel::wayland {

struct MockKDEManagement::Requests {
    using Object = MockObject<MockKDEManagement>;
    struct Announced {
        Announced(MockKDEManagement& self, MockMonitor& announced) : management(self), monitor(announced) {}
        MockKDEManagement& management;
        MockMonitor& monitor;
    };
    struct ConfigurationObject {
        MockKDEManagement& management;
        std::shared_ptr<Configuration> configuration;
    };

    static void bindManager(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        Object::make(client, kde_output_management_v2_interface, version, id, &manager,
                     {*static_cast<MockKDEManagement*>(data), nullptr, {}});
    }
    static void bindDevice(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        const auto& announced = *static_cast<Announced*>(data);
        announced.management.bindDevice(client, version, id, announced.monitor);
    }
    static ConfigurationObject& object(wl_resource* resource) {
        return *static_cast<ConfigurationObject*>(wl_resource_get_user_data(resource));
    }

    static void create(wl_client* client, wl_resource* manager, std::uint32_t id) {
        wl_resource* const resource = wl_resource_create(client, &kde_output_configuration_v2_interface,
                                                         wl_resource_get_version(manager), id);
        auto* const made =
            new ConfigurationObject{Object::of(manager).owner, std::make_shared<Configuration>()};
        wl_resource_set_implementation(resource, &configuration, made,
                                       [](wl_resource* ending) { delete &object(ending); });
    }
    static void change(wl_resource* resource, wl_resource* device,
                       std::function<void(MockMonitor::State&)> change) {
        MockMonitor& monitor = *Object::of(device).monitor;
        object(resource).configuration->changes.push_back(
            [&monitor, change = std::move(change)] { change(monitor.state); });
    }

    static void enable(wl_client*, wl_resource* resource, wl_resource* device, std::int32_t isEnabled) {
        change(resource, device, [=](MockMonitor::State& state) { state.isEnabled = isEnabled != 0; });
    }
    static void mode(wl_client*, wl_resource* resource, wl_resource* device, wl_resource* mode) {
        const auto* const asked = static_cast<MockMonitor::Mode*>(wl_resource_get_user_data(mode));
        const auto number = asked - Object::of(device).monitor->modes.data();
        change(resource, device,
               [=](MockMonitor::State& state) { state.mode = static_cast<std::size_t>(number); });
    }
    static void transform(wl_client*, wl_resource* resource, wl_resource* device, std::int32_t transform) {
        change(resource, device, [=](MockMonitor::State& state) { state.transform = transform; });
    }
    static void position(wl_client*, wl_resource* resource, wl_resource* device, std::int32_t x,
                         std::int32_t y) {
        change(resource, device, [=](MockMonitor::State& state) { state.x = x, state.y = y; });
    }
    static void scale(wl_client*, wl_resource* resource, wl_resource* device, wl_fixed_t scale) {
        change(resource, device, [=](MockMonitor::State& state) { state.scale = scale; });
    }
    static void apply(wl_client*, wl_resource* resource) {
        const ConfigurationObject& found = object(resource);
        found.management.apply(resource, found.configuration);
    }
    static void variableRefresh(wl_client*, wl_resource* resource, wl_resource* device,
                                std::uint32_t policy) {
        change(resource, device, [=](MockMonitor::State& state) { state.variableRefresh = policy; });
    }
    static void number(wl_client*, wl_resource*, wl_resource*, std::uint32_t) {}
    static void primary(wl_client*, wl_resource*, wl_resource*) {}

    static constexpr struct kde_output_management_v2_interface manager = {create};
    static constexpr struct kde_output_configuration_v2_interface configuration = {
        enable,        mode,   transform,       position, scale,   apply,
        endMockObject, number, variableRefresh, number,   primary, number};
};

MockKDEManagement::MockKDEManagement(MockDesk& desk) : desk_(desk) {
    wl_global_create(desk.display, &kde_output_management_v2_interface, 3, this, Requests::bindManager);
}

void MockKDEManagement::publish() {
    for (const auto& monitor : desk_.monitors) {
        Shown& shown = shown_[monitor.get()];
        if (monitor->isPlugged && shown.global == nullptr) {
            // It may be bound for as long as the compositor lives, even when it has been removed.
            if (!shown.announced) shown.announced = std::make_shared<Requests::Announced>(*this, *monitor);
            shown.global = wl_global_create(desk_.display, &kde_output_device_v2_interface, 2,
                                            shown.announced.get(), Requests::bindDevice);
        } else if (!monitor->isPlugged && shown.global != nullptr) {
            wl_global_remove(shown.global);
            shown.global = nullptr;
        } else if (monitor->isPlugged) {
            for (const Device& device : shown.devices) tell(device, *monitor);
        }
    }
}

void MockKDEManagement::bindDevice(wl_client* client, std::uint32_t version, std::uint32_t id,
                                   MockMonitor& monitor) {
    Device device;
    device.device = Requests::Object::make(
        client, kde_output_device_v2_interface, version, id, nullptr,
        {*this, &monitor, [this, &monitor](wl_resource* ending) {
             std::erase_if(shown_[&monitor].devices,
                           [=](const Device& other) { return other.device == ending; });
         }});
    for (MockMonitor::Mode& mode : monitor.modes) {
        wl_resource* const object = wl_resource_create(client, &kde_output_device_mode_v2_interface, 1, 0);
        device.modes.push_back(object);
        wl_resource_set_implementation(object, nullptr, &mode, nullptr);
        kde_output_device_v2_send_mode(device.device, object);
        kde_output_device_mode_v2_send_size(object, mode.width, mode.height);
        if (mode.refresh != 0) kde_output_device_mode_v2_send_refresh(object, mode.refresh);
        if (mode.isPreferred) kde_output_device_mode_v2_send_preferred(object);
    }
    kde_output_device_v2_send_edid(device.device, monitor.edid.c_str());
    kde_output_device_v2_send_uuid(device.device, "0-1-2");
    kde_output_device_v2_send_serial_number(device.device, "1234");
    kde_output_device_v2_send_eisa_id(device.device, "");
    kde_output_device_v2_send_capabilities(device.device, 0);
    kde_output_device_v2_send_overscan(device.device, 0);
    kde_output_device_v2_send_rgb_range(device.device, 0);
    if (version >= KDE_OUTPUT_DEVICE_V2_NAME_SINCE_VERSION) {
        kde_output_device_v2_send_name(device.device, monitor.name.c_str());
    }
    shown_[&monitor].devices.push_back(device);
    tell(device, monitor);
}

void MockKDEManagement::tell(const Device& device, const MockMonitor& monitor) {
    const MockMonitor::State& state = monitor.state;
    kde_output_device_v2_send_enabled(device.device, state.isEnabled ? 1 : 0);
    kde_output_device_v2_send_geometry(device.device, state.x, state.y, 600, 340, 0, monitor.make.c_str(),
                                       monitor.model.c_str(), state.transform);
    kde_output_device_v2_send_scale(device.device, state.scale);
    kde_output_device_v2_send_vrr_policy(device.device, state.variableRefresh);
    kde_output_device_v2_send_current_mode(device.device, device.modes.at(state.mode));
    kde_output_device_v2_send_done(device.device);
}

void MockKDEManagement::apply(wl_resource* resource, const std::shared_ptr<Configuration>& configuration) {
    if (std::exchange(configuration->isUsed, true)) {
        wl_resource_post_error(resource, KDE_OUTPUT_CONFIGURATION_V2_ERROR_ALREADY_APPLIED, "twice");
        return;
    }
    // The client may have let go of it by the time that it is kept for.
    const auto answer = [object = std::weak_ptr(configuration), resource](MockDesk::Answer answer) {
        if (object.expired()) return;
        if (answer == MockDesk::Answer::succeed) kde_output_configuration_v2_send_applied(resource);
        // There is no other word for it here.
        if (answer != MockDesk::Answer::succeed) kde_output_configuration_v2_send_failed(resource);
    };
    desk_.receive({[changes = configuration->changes] {
                       for (const auto& change : changes) change();
                   },
                   answer});
}

}  // namespace vantrel::wayland
