// A Mac in virtual time, with a desk behind its C interfaces.
#pragma once

#include <cstdint>
#include <utility>

#include "macos/fake/FakeMac.h"
#include "platform/macos/MacPlatform.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/WakingScheduler.h"
#include "support/TestDesks.h"

namespace vantrel::macos {

class MacBench {
  public:
    explicit MacBench(simulated::Desk desk = test::usualDesk())
        : computer(std::move(desk), scheduler, loop) {}
    MacBench(const MacBench&) = delete;
    MacBench& operator=(const MacBench&) = delete;
    ~MacBench() { scheduler.finishThreads(); }

    simulated::VirtualTime time;
    runtime::WakingScheduler scheduler{time};
    runtime::MainLoop loop{scheduler};
    simulated::SimulatedPlatform computer;
    fake::FakeMac fake{computer, time};
    MacPlatform mac{scheduler, loop};
    platform::Platform platform = mac.platform();
};

}  // namespace vantrel::macos
