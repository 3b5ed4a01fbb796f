// The whole program's models on the Linux platform, with somebody at the desk. Base of fixtures.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

#include "linux/LinuxStoryComputer.h"
#include "support/DeskStory.h"

namespace vantrel::linux {

class LinuxScenario : public testing::Test {
  protected:
    explicit LinuxScenario(const simulated::Desk& desk = test::usualDesk())
        : LinuxScenario(std::make_unique<LinuxStoryComputer>(desk)) {}

    LinuxHardware& hardware() const { return computer.hardware(); }
    FakeDesktop& desktop() const { return hardware().desktop; }
    FakeI2C& devices() const { return hardware().devices; }
    SessionMemory& memory() const { return computer.bench().memory; }
    const std::string& outputName(platform::DisplayID display) const {
        return hardware().place(display).output;
    }
    unsigned bus(platform::DisplayID display) const { return hardware().place(display).bus.value(); }

    LinuxStoryComputer& computer;
    test::DeskStory story;

  private:
    explicit LinuxScenario(std::unique_ptr<LinuxStoryComputer> made)
        : computer(*made), story(std::move(made)) {}
};

}  // namespace vantrel::linux
