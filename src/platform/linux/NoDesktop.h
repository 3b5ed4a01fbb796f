// A computer whose user is logged in to no desktop that the program knows: nobody has a
// say over its outputs.
#pragma once

#include "platform/linux/Desktop.h"

namespace vantrel::linux {

class NoDesktop : public Desktop {
  public:
    std::string name() const override { return "this session"; }
    std::string identity() const override { return "none"; }
    std::vector<Output> outputs() override { return {}; }
    std::optional<platform::TransferTable> table(const std::string&) override { return std::nullopt; }
    bool setTable(const std::string&, const platform::TransferTable&) override { return false; }
    bool keepsTables() const override { return false; }
    bool canSwitch() const override { return false; }
    std::optional<Arrangement> arrangement(const std::string&) override { return std::nullopt; }
    bool darken(const std::string&) override { return false; }
    bool light(const std::string&, const std::optional<Arrangement>&) override { return false; }
    void onChange(std::function<void()>) override {}
};

}  // namespace vantrel::linux
