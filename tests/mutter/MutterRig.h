// A MutterDesktop on a mock service, in real time because the service is a real peer;
// nothing depends on how long that takes.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "mutter/MockMutter.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/mutter/MutterDesktop.h"
#include "runtime/MainLoop.h"
#include "runtime/RealScheduler.h"
#include "support/PrivateBus.h"

namespace vantrel::mutter {

class MutterRig : public testing::Test {
  protected:
    using Output = linux::Desktop::Output;
    using Logical = MockScreen::Logical;

    // Three in a row; the first one is the primary one.
    static MockMutter::Desk threeInARow() {
        MockMutter::Desk desk;
        int x = 0;
        for (const char* const connector : {"DP-1", "DP-2", "HDMI-1"}) {
            desk.screens.emplace_back().connector = connector;
            desk.logical.push_back({std::exchange(x, x + 1920),
                                    0,
                                    1,
                                    0,
                                    desk.logical.empty(),
                                    {{connector, "1920x1080@60.000"}}});
        }
        return desk;
    }

    explicit MutterRig(MockMutter::Desk desk = threeInARow())
        : mutter(std::move(desk)), desktop(MutterDesktop::open(descriptors, loop)) {}

    Output output(const std::string& name) {
        for (const Output& output : desktop->outputs()) {
            if (output.name == name) return output;
        }
        ADD_FAILURE() << "no output " << name;
        return {};
    }
    // Where a monitor's part of the desktop begins.
    std::pair<int, int> place(const std::string& connector) {
        const MockMutter::Desk desk = mutter.desk();
        const Logical* const part = desk.find(connector);
        return part != nullptr ? std::pair(part->x, part->y) : std::pair(-1, -1);
    }
    // Runs the main loop until there is said to be something new, and it is that.
    template <class Condition>
    void waitForChange(Condition isThere) {
        desktop->onChange([&] {
            if (isThere()) loop.quit();
        });
        loop.run();
        desktop->onChange({});
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    test::PrivateBus bus;
    linux::DescriptorThread descriptors{loop};
    MockMutter mutter;
    std::unique_ptr<MutterDesktop> desktop;
};

}  // namespace vantrel::mutter
