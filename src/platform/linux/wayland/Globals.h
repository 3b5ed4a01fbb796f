// What the compositor offers of what this room knows, as it comes and goes.
//
// Threads: main thread. Lifetime: the connection outlives it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/CoreOutput.h"
#include "platform/linux/wayland/KDEOutputManagement.h"
#include "platform/linux/wayland/Proxy.h"
#include "platform/linux/wayland/WlrOutputManagement.h"

namespace vantrel::wayland {

class Globals {
  public:
    Globals(Connection& connection, bool wantsTables);
    Globals(const Globals&) = delete;
    Globals& operator=(const Globals&) = delete;

    // By their numbers, which rise in the order of their appearance.
    const std::map<std::uint32_t, CoreOutput>& outputs() const { return outputs_; }
    // Nothing when there is none with that name.
    CoreOutput* output(std::string_view name);
    // Nothing when the compositor has no protocol for it.
    OutputManagement* management();
    // How many objects have been asked for so far. What the compositor tells of one comes
    // after that.
    int bindings() const { return bindings_; }

  private:
    struct Events;

    void add(std::uint32_t number, std::string_view interface, std::uint32_t version);
    void remove(std::uint32_t number);
    template <class Object, class Interface>
    Proxy<Object> bind(std::uint32_t number, const Interface& interface, std::uint32_t version);

    Connection& connection_;
    const bool wantsTables_;
    int bindings_ = 0;
    Proxy<wl_registry> registry_;
    std::uint32_t gammaNumber_ = 0;
    Proxy<zwlr_gamma_control_manager_v1> gamma_;
    std::map<std::uint32_t, CoreOutput> outputs_;
    std::uint32_t wlrNumber_ = 0;
    std::optional<WlrOutputManagement> wlr_;
    std::uint32_t kdeNumber_ = 0;
    KDEOutputManagement kde_;
};

}  // namespace vantrel::wayland
