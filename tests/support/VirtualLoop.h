// A main loop in virtual time: what most tests run on.
#pragma once

#include <chrono>

#include "platform/simulated/VirtualTime.h"
#include "runtime/MainLoop.h"

namespace vantrel::test {

struct VirtualLoop {
    simulated::VirtualTime time;
    runtime::MainLoop loop{time};

    // Since the beginning of the test.
    std::chrono::milliseconds elapsed() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time.now().time_since_epoch());
    }
};

}  // namespace vantrel::test
