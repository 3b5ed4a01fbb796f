#include "wayland/MockWlrManagement.h"

#include <algorithm>
#include <utility>
#include <wayland-server-protocols/wlr-output-management-unstable-v1.h>

#include "wayland/MockObject.h"

namespace vantrel::wayland {

struct MockWlrManagement::Requests {
    using Object = MockObject<MockWlrManagement>;
    struct ConfigurationObject {
        MockWlrManagement& management;
        std::shared_ptr<Configuration> configuration;
    };

    static void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static_cast<MockWlrManagement*>(data)->bind(client, version, id);
    }
    static ConfigurationObject& object(wl_resource* resource) {
        return *static_cast<ConfigurationObject*>(wl_resource_get_user_data(resource));
    }
    static Asked& asked(wl_resource* resource) {
        return *static_cast<Asked*>(wl_resource_get_user_data(resource));
    }

    static void create(wl_client* client, wl_resource* manager, std::uint32_t id, std::uint32_t serial) {
        wl_resource* const resource = wl_resource_create(client, &zwlr_output_configuration_v1_interface,
                                                         wl_resource_get_version(manager), id);
        auto* const made =
            new ConfigurationObject{Object::of(manager).owner, std::make_shared<Configuration>()};
        made->configuration->serial = serial;
        wl_resource_set_implementation(resource, &configuration, made,
                                       [](wl_resource* ending) { delete &object(ending); });
    }
    static void stop(wl_client*, wl_resource* manager) {
        zwlr_output_manager_v1_send_finished(manager);
        wl_resource_destroy(manager);
    }

    // Nothing when the client has broken the protocol.
    static Asked* describe(wl_resource* resource, wl_resource* head, bool isEnabled) {
        Configuration& configuration = *object(resource).configuration;
        MockMonitor& monitor = *MockObject<MockMonitor>::of(head).monitor;
        const bool isTwice = std::any_of(configuration.heads.begin(), configuration.heads.end(),
                                         [&](const auto& other) { return &other->monitor == &monitor; });
        if (isTwice || configuration.isUsed) {
            wl_resource_post_error(resource, ZWLR_OUTPUT_CONFIGURATION_V1_ERROR_ALREADY_CONFIGURED_HEAD,
                                   "twice");
            return nullptr;
        }
        // What isn't told is the compositor's to choose: not what was there before.
        MockMonitor::State state;
        state.isEnabled = isEnabled;
        if (!isEnabled) state = monitor.state, state.isEnabled = false;
        return configuration.heads.emplace_back(std::make_unique<Asked>(Asked{monitor, state})).get();
    }
    static void enable(wl_client* client, wl_resource* resource, std::uint32_t id, wl_resource* head) {
        Asked* const made = describe(resource, head, true);
        if (made == nullptr) return;
        wl_resource* const details = wl_resource_create(client, &zwlr_output_configuration_head_v1_interface,
                                                        wl_resource_get_version(resource), id);
        wl_resource_set_implementation(details, &configurationHead, made, nullptr);
    }
    static void disable(wl_client*, wl_resource* resource, wl_resource* head) {
        describe(resource, head, false);
    }
    static void apply(wl_client*, wl_resource* resource) {
        const ConfigurationObject& found = object(resource);
        found.management.apply(resource, *found.configuration);
    }

    static void setMode(wl_client*, wl_resource* resource, wl_resource* mode) {
        const auto* const found = static_cast<MockMonitor::Mode*>(wl_resource_get_user_data(mode));
        const auto number = found - asked(resource).monitor.modes.data();
        asked(resource).state.mode = static_cast<std::size_t>(number);
    }
    static void setCustomMode(wl_client*, wl_resource* resource, std::int32_t, std::int32_t, std::int32_t) {
        wl_resource_post_error(resource, ZWLR_OUTPUT_CONFIGURATION_HEAD_V1_ERROR_INVALID_CUSTOM_MODE,
                               "none here");
    }
    static void setPosition(wl_client*, wl_resource* resource, std::int32_t x, std::int32_t y) {
        asked(resource).state.x = x;
        asked(resource).state.y = y;
    }
    static void setTransform(wl_client*, wl_resource* resource, std::int32_t transform) {
        asked(resource).state.transform = transform;
    }
    static void setScale(wl_client*, wl_resource* resource, wl_fixed_t scale) {
        if (scale <= 0) {
            wl_resource_post_error(resource, ZWLR_OUTPUT_CONFIGURATION_HEAD_V1_ERROR_INVALID_SCALE, "scale");
        }
        asked(resource).state.scale = scale;
    }

    static constexpr struct zwlr_output_manager_v1_interface manager = {create, stop};
    static constexpr struct zwlr_output_configuration_v1_interface configuration = {enable, disable, apply,
                                                                                    apply, endMockObject};
    static constexpr struct zwlr_output_configuration_head_v1_interface configurationHead = {
        setMode, setCustomMode, setPosition, setTransform, setScale};
};

MockWlrManagement::MockWlrManagement(MockDesk& desk, std::uint32_t version)
    : desk_(desk),
      global_(wl_global_create(desk.display, &zwlr_output_manager_v1_interface, static_cast<int>(version),
                               this, Requests::bind)) {}

void MockWlrManagement::publish() {
    ++serial_;
    for (auto& [manager, heads] : managers_) tell(manager, heads);
}

void MockWlrManagement::finish() {
    wl_global_remove(global_);
    while (!managers_.empty()) Requests::stop(nullptr, managers_.begin()->first);
}

void MockWlrManagement::bind(wl_client* client, std::uint32_t version, std::uint32_t id) {
    wl_resource* const manager =
        Requests::Object::make(client, zwlr_output_manager_v1_interface, version, id, &Requests::manager,
                               {*this, nullptr, [this](wl_resource* ending) { managers_.erase(ending); }});
    tell(manager, managers_[manager]);
}

void MockWlrManagement::tell(wl_resource* manager, ToldHeads& heads) {
    for (const auto& monitor : desk_.monitors) {
        const auto told = heads.find(monitor.get());
        if (!monitor->isPlugged) {
            if (told != heads.end()) {
                for (wl_resource* const mode : told->second.modes) zwlr_output_mode_v1_send_finished(mode);
                // The client's object stays for what it may have asked with it already.
                zwlr_output_head_v1_send_finished(told->second.head);
                heads.erase(told);
            }
            continue;
        }
        const ToldHead& head =
            told != heads.end() ? told->second : heads[monitor.get()] = introduce(manager, *monitor);
        const MockMonitor::State& state = monitor->state;
        zwlr_output_head_v1_send_enabled(head.head, state.isEnabled ? 1 : 0);
        if (!state.isEnabled) continue;
        zwlr_output_head_v1_send_current_mode(head.head, head.modes.at(state.mode));
        zwlr_output_head_v1_send_position(head.head, state.x, state.y);
        zwlr_output_head_v1_send_transform(head.head, state.transform);
        zwlr_output_head_v1_send_scale(head.head, state.scale);
    }
    zwlr_output_manager_v1_send_done(manager, serial_);
}

MockWlrManagement::ToldHead MockWlrManagement::introduce(wl_resource* manager, MockMonitor& monitor) {
    wl_client* const client = wl_resource_get_client(manager);
    const int version = wl_resource_get_version(manager);
    ToldHead told;
    told.head = MockObject<MockMonitor>::make(client, zwlr_output_head_v1_interface,
                                              static_cast<std::uint32_t>(version), 0, nullptr,
                                              {monitor, &monitor, {}});
    zwlr_output_manager_v1_send_head(manager, told.head);
    zwlr_output_head_v1_send_name(told.head, monitor.name.c_str());
    zwlr_output_head_v1_send_description(told.head, monitor.description.c_str());
    if (version >= ZWLR_OUTPUT_HEAD_V1_MAKE_SINCE_VERSION) {
        zwlr_output_head_v1_send_make(told.head, monitor.make.c_str());
        zwlr_output_head_v1_send_model(told.head, monitor.model.c_str());
        zwlr_output_head_v1_send_serial_number(told.head, "1234");
    }
    for (MockMonitor::Mode& mode : monitor.modes) {
        wl_resource* const object = wl_resource_create(client, &zwlr_output_mode_v1_interface, version, 0);
        told.modes.push_back(object);
        wl_resource_set_implementation(object, nullptr, &mode, nullptr);
        zwlr_output_head_v1_send_mode(told.head, object);
        zwlr_output_mode_v1_send_size(object, mode.width, mode.height);
        if (mode.refresh != 0) zwlr_output_mode_v1_send_refresh(object, mode.refresh);
        if (mode.isPreferred) zwlr_output_mode_v1_send_preferred(object);
    }
    return told;
}

void MockWlrManagement::apply(wl_resource* resource, Configuration& configuration) {
    const auto isComplete = [&] {
        return std::all_of(desk_.monitors.begin(), desk_.monitors.end(), [&](const auto& monitor) {
            return !monitor->isPlugged ||
                   std::any_of(configuration.heads.begin(), configuration.heads.end(),
                               [&](const auto& head) { return &head->monitor == monitor.get(); });
        });
    };
    configuration.isUsed = true;
    if (configuration.serial != serial_) {
        zwlr_output_configuration_v1_send_cancelled(resource);
        return;
    }
    if (!isComplete()) {
        wl_resource_post_error(resource, ZWLR_OUTPUT_CONFIGURATION_V1_ERROR_UNCONFIGURED_HEAD,
                               "a head is missing");
        return;
    }
    std::vector<Asked> asked;
    asked.reserve(configuration.heads.size());
    for (const auto& head : configuration.heads) asked.push_back(*head);
    // The client may have let go of it by the time that it is kept for.
    const auto answer = [object = std::weak_ptr(Requests::object(resource).configuration),
                         resource](MockDesk::Answer answer) {
        if (object.expired()) return;
        if (answer == MockDesk::Answer::succeed) zwlr_output_configuration_v1_send_succeeded(resource);
        if (answer == MockDesk::Answer::fail) zwlr_output_configuration_v1_send_failed(resource);
        if (answer == MockDesk::Answer::cancel) zwlr_output_configuration_v1_send_cancelled(resource);
    };
    desk_.receive({[asked] {
                       for (const Asked& head : asked) head.monitor.state = head.state;
                   },
                   answer});
}

}  // namespace vantrel::wayland
