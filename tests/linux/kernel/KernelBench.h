// A test on an emulated kernel in virtual time: the panel (1), "Alder" (2, HDMI-A-1, its
// bus linked), "Birch" (3, DP-1, its bus a child) and "Cedar" (4, DP-2, only its EDID
// tells), on i2c-4 to i2c-7.
#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "linux/kernel/EmulatedKernel.h"
#include "linux/kernel/WithoutSuperuser.h"
#include "support/TestDesks.h"
#include "support/VirtualLoop.h"

namespace vantrel::test {

class KernelBench : public testing::Test {
  protected:
    KernelBench() { withoutSuperuser(); }

    static simulated::Desk desk() {
        return deskOf(
            {panelPlan(), monitorPlan(2, "Alder"), monitorPlan(3, "Birch"), monitorPlan(4, "Cedar")});
    }
    // As a program reads it.
    static std::string contents(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    VirtualLoop virtualLoop;
    EmulatedKernel kernel{desk(), virtualLoop.loop, virtualLoop.time, EmulatedKernel::BusTime::addsUp};
};

}  // namespace vantrel::test
