// OutputManagement by wlr-output-management-unstable-v1.
//
// Threads: main thread.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/OutputManagement.h"
#include "platform/linux/wayland/Proxy.h"
#include "platform/linux/wayland/Questions.h"
#include "platform/linux/wayland/WlrHead.h"

namespace vantrel::wayland {

class WlrOutputManagement : public OutputManagement {
  public:
    // The newest version that this speaks.
    static constexpr std::uint32_t version = 2;

    WlrOutputManagement(Connection& connection, Proxy<zwlr_output_manager_v1> manager);
    WlrOutputManagement(const WlrOutputManagement&) = delete;
    WlrOutputManagement& operator=(const WlrOutputManagement&) = delete;

    std::vector<Head> heads() const override;
    Answer ask(const std::string& head, const std::optional<Shape>& shape, const Deadline& deadline) override;
    bool mayDarken(const std::string& head) const override { return questions_.mayDarken(head); }

  private:
    struct Events;
    using HeadRequests = std::vector<Proxy<zwlr_output_configuration_head_v1>>;

    WlrHead* find(const std::string& name) const;
    HeadRequests describe(zwlr_output_configuration_v1* configuration, const WlrHead* changed,
                          const std::optional<Shape>& shape) const;

    Connection& connection_;
    // Nothing when the compositor has finished with it.
    Proxy<zwlr_output_manager_v1> manager_;
    std::vector<std::unique_ptr<WlrHead>> heads_;
    std::uint32_t serial_ = 0;
    Questions<zwlr_output_configuration_v1> questions_;
};

}  // namespace vantrel::wayland
