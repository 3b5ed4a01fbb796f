// kde_output_management_v2 and its devices of the mock compositor.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "wayland/MockDesk.h"

namespace vantrel::wayland {

class MockKDEManagement {
  public:
    explicit MockKDEManagement(MockDesk& desk);

    void publish();

  private:
    struct Requests;
    struct Configuration {
        std::vector<std::function<void()>> changes;
        bool isUsed = false;
    };
    struct Device {
        wl_resource* device = nullptr;
        std::vector<wl_resource*> modes;
    };
    struct Shown {
        // What the global's events need.
        std::shared_ptr<void> announced;
        wl_global* global = nullptr;
        std::vector<Device> devices;
    };

    void bindDevice(wl_client* client, std::uint32_t version, std::uint32_t id, MockMonitor& monitor);
    static void tell(const Device& device, const MockMonitor& monitor);
    void apply(wl_resource* resource, const std::shared_ptr<Configuration>& configuration);

    MockDesk& desk_;
    std::map<const MockMonitor*, Shown> shown_;
};

}  // namespace vantrel::wayland
