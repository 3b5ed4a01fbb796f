// OutputManagement by kde-output-management-v2.
//
// Threads: main thread.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/KDEDevice.h"
#include "platform/linux/wayland/OutputManagement.h"
#include "platform/linux/wayland/Proxy.h"
#include "platform/linux/wayland/Questions.h"

namespace vantrel::wayland {

class KDEOutputManagement : public OutputManagement {
  public:
    explicit KDEOutputManagement(Connection& connection) : connection_(connection) {}

    // The devices and their manager are objects that come and go one by one.
    void use(Proxy<kde_output_management_v2> manager) { manager_ = std::move(manager); }
    bool isUsable() const { return manager_ != nullptr; }
    void add(std::uint32_t number, Proxy<kde_output_device_v2> device);
    void remove(std::uint32_t number) { devices_.erase(number); }

    std::vector<Head> heads() const override;
    Answer ask(const std::string& head, const std::optional<Shape>& shape, const Deadline& deadline) override;
    bool mayDarken(const std::string& head) const override { return questions_.mayDarken(head); }

  private:
    struct Events;

    Connection& connection_;
    Proxy<kde_output_management_v2> manager_;
    // In the order in which the compositor has announced them.
    std::map<std::uint32_t, KDEDevice> devices_;
    Questions<kde_output_configuration_v2> questions_;
};

}  // namespace vantrel::wayland
