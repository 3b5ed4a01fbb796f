#include "wayland/MockOutputs.h"

#include <unistd.h>
#include <wayland-server-protocols/wlr-gamma-control-unstable-v1.h>

#include "wayland/MockObject.h"

namespace vantrel::wayland {

struct MockOutputs::Requests {
    using Object = MockObject<MockOutputs>;
    struct Announced {
        Announced(MockOutputs& self, MockMonitor& announced) : outputs(self), monitor(announced) {}
        MockOutputs& outputs;
        MockMonitor& monitor;
    };

    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        const auto& announced = *static_cast<Announced*>(data);
        announced.outputs.bind(client, version, id, announced.monitor);
    }
    static void bindManager(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        Object::make(client, zwlr_gamma_control_manager_v1_interface, version, id, &manager,
                     {*static_cast<MockOutputs*>(data), nullptr, {}});
    }
    static void getControl(wl_client* client, wl_resource* resource, std::uint32_t id, wl_resource* output) {
        Object::of(resource).owner.giveControl(client, id, *Object::of(output).monitor);
    }
    static void setGamma(wl_client*, wl_resource* resource, std::int32_t descriptor) {
        const Object& object = Object::of(resource);
        object.owner.setTable(resource, *object.monitor, descriptor);
    }

    static constexpr struct wl_output_interface output = {endMockObject};
    static constexpr struct zwlr_gamma_control_manager_v1_interface manager = {getControl, endMockObject};
    static constexpr struct zwlr_gamma_control_v1_interface control = {setGamma, endMockObject};
};

MockOutputs::MockOutputs(MockDesk& desk, std::uint32_t version, bool hasGammaControl)
    : desk_(desk), version_(version) {
    if (!hasGammaControl) return;
    wl_global_create(desk.display, &zwlr_gamma_control_manager_v1_interface, 1, this, Requests::bindManager);
}

void MockOutputs::publish() {
    for (const auto& monitor : desk_.monitors) {
        Shown& shown = shown_[monitor.get()];
        if (monitor->isLit() && shown.global == nullptr) {
            // It may be bound for as long as the compositor lives, even when it has been removed.
            if (!shown.announced) shown.announced = std::make_shared<Requests::Announced>(*this, *monitor);
            shown.global = wl_global_create(desk_.display, &wl_output_interface, static_cast<int>(version_),
                                            shown.announced.get(), Requests::bindOutput);
        } else if (!monitor->isLit() && shown.global != nullptr) {
            wl_global_remove(shown.global);
            shown.global = nullptr;
            monitor->table.clear();
        } else if (monitor->isLit()) {
            for (wl_resource* const resource : shown.resources) tell(resource, *monitor);
        }
    }
}

void MockOutputs::seizeControl(const MockMonitor& monitor) {
    if (wl_resource* const control = shown_[&monitor].control) zwlr_gamma_control_v1_send_failed(control);
}

void MockOutputs::bind(wl_client* client, std::uint32_t version, std::uint32_t id, MockMonitor& monitor) {
    wl_resource* const resource = Requests::Object::make(
        client, wl_output_interface, version, id, &Requests::output,
        {*this, &monitor,
         [this, &monitor](wl_resource* ending) { std::erase(shown_[&monitor].resources, ending); }});
    shown_[&monitor].resources.push_back(resource);
    tell(resource, monitor);
}

void MockOutputs::tell(wl_resource* resource, const MockMonitor& monitor) const {
    const MockMonitor::State& state = monitor.state;
    const MockMonitor::Mode& mode = monitor.modes.at(state.mode);
    wl_output_send_geometry(resource, state.x, state.y, 600, 340, 0, monitor.make.c_str(),
                            monitor.model.c_str(), state.transform);
    wl_output_send_mode(resource, WL_OUTPUT_MODE_CURRENT, mode.width, mode.height, mode.refresh);
    wl_output_send_scale(resource, (state.scale + 255) / 256);
    if (wl_resource_get_version(resource) >= WL_OUTPUT_NAME_SINCE_VERSION) {
        wl_output_send_name(resource, monitor.name.c_str());
        wl_output_send_description(resource, monitor.description.c_str());
    }
    wl_output_send_done(resource);
}

void MockOutputs::giveControl(wl_client* client, std::uint32_t id, MockMonitor& monitor) {
    ++monitor.controlRequests;
    wl_resource* const control =
        Requests::Object::make(client, zwlr_gamma_control_v1_interface, 1, id, &Requests::control,
                               {*this, &monitor, [this, &monitor](wl_resource* ending) {
                                    if (shown_[&monitor].control != ending) return;
                                    shown_[&monitor].control = nullptr;
                                    monitor.table.clear();
                                }});
    if (monitor.refusesControl || !monitor.isLit() || shown_[&monitor].control != nullptr) {
        zwlr_gamma_control_v1_send_failed(control);
        return;
    }
    shown_[&monitor].control = control;
    zwlr_gamma_control_v1_send_gamma_size(control, monitor.tableSize);
}

void MockOutputs::setTable(wl_resource* control, MockMonitor& monitor, int descriptor) {
    std::vector<std::uint16_t> table(std::size_t{3} * monitor.tableSize + 1);
    const ssize_t size = ::read(descriptor, table.data(), table.size() * sizeof table[0]);
    ::close(descriptor);
    table.pop_back();
    if (size != static_cast<ssize_t>(table.size() * sizeof table[0])) {
        wl_resource_post_error(control, ZWLR_GAMMA_CONTROL_V1_ERROR_INVALID_GAMMA, "a table of another size");
    } else if (shown_[&monitor].control == control) {
        monitor.table = std::move(table);
    }
}

}  // namespace vantrel::wayland
