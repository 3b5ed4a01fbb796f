// wl_output and zwlr_gamma_control_manager_v1 of the mock compositor.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "wayland/MockDesk.h"

namespace vantrel::wayland {

class MockOutputs {
  public:
    MockOutputs(MockDesk& desk, std::uint32_t version, bool hasGammaControl);

    void publish();
    // Takes the control from whoever has it.
    void seizeControl(const MockMonitor& monitor);

  private:
    struct Requests;
    struct Shown {
        // What the global's events need.
        std::shared_ptr<void> announced;
        wl_global* global = nullptr;
        std::vector<wl_resource*> resources;
        wl_resource* control = nullptr;
    };

    void bind(wl_client* client, std::uint32_t version, std::uint32_t id, MockMonitor& monitor);
    void tell(wl_resource* resource, const MockMonitor& monitor) const;
    void giveControl(wl_client* client, std::uint32_t id, MockMonitor& monitor);
    void setTable(wl_resource* control, MockMonitor& monitor, int descriptor);

    MockDesk& desk_;
    const std::uint32_t version_;
    std::map<const MockMonitor*, Shown> shown_;
};

}  // namespace vantrel::wayland
