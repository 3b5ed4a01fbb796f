// zwlr_output_manager_v1 of the mock compositor. Strict: whatever the protocol calls an
// error ends the client.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "wayland/MockDesk.h"

namespace vantrel::wayland {

class MockWlrManagement {
  public:
    MockWlrManagement(MockDesk& desk, std::uint32_t version);

    void publish();
    // Ends all managers.
    void finish();

  private:
    struct Requests;
    struct Asked {
        MockMonitor& monitor;
        MockMonitor::State state;
    };
    struct Configuration {
        std::uint32_t serial = 0;
        std::vector<std::unique_ptr<Asked>> heads;
        bool isUsed = false;
    };
    struct ToldHead {
        wl_resource* head = nullptr;
        std::vector<wl_resource*> modes;
    };
    using ToldHeads = std::map<const MockMonitor*, ToldHead>;

    void bind(wl_client* client, std::uint32_t version, std::uint32_t id);
    void tell(wl_resource* manager, ToldHeads& heads);
    static ToldHead introduce(wl_resource* manager, MockMonitor& monitor);
    void apply(wl_resource* resource, Configuration& configuration);

    MockDesk& desk_;
    wl_global* global_ = nullptr;
    std::uint32_t serial_ = 100;
    std::map<wl_resource*, ToldHeads> managers_;
};

}  // namespace vantrel::wayland
