// A WaylandDesktop on a mock compositor, in real time because the compositor is a real
// peer; nothing depends on how long that takes.
#pragma once

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platform/linux/DescriptorThread.h"
#include "platform/linux/wayland/WaylandDesktop.h"
#include "runtime/MainLoop.h"
#include "runtime/RealScheduler.h"
#include "wayland/MockCompositor.h"

namespace vantrel::wayland {

// The real clock, until nobody has patience any more: then each look at it is two
// seconds later, all but a millisecond.
class HurryingClock final : public runtime::Clock {
  public:
    void hurry() { isHurrying_ = true; }
    void calmDown() { isHurrying_ = false; }

    runtime::MonotonicTime now() const override {
        if (isHurrying_) ahead_ += std::chrono::milliseconds(1999);
        return scheduler_.now() + ahead_;
    }
    runtime::WallTime wallNow() const override { return scheduler_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override { scheduler_.sleepFor(duration); }

  private:
    runtime::RealScheduler scheduler_;
    bool isHurrying_ = false;
    mutable runtime::MonotonicClock::duration ahead_{};
};

class WaylandRig : public testing::Test {
  protected:
    using Output = linux::Desktop::Output;

    explicit WaylandRig(const MockCompositor::Protocols& protocols = {},
                        const std::vector<MockMonitor>& monitors = {MockMonitor("DP-1"),
                                                                    MockMonitor("DP-2", 1920)})
        : compositor(protocols, monitors), desktop(open("")) {}

    std::unique_ptr<WaylandDesktop> open(const std::string& name) {
        return WaylandDesktop::open({compositor.socket(), name, true}, descriptors, clock);
    }
    Output output(const std::string& name) {
        for (const Output& output : desktop->outputs()) {
            if (output.name == name) return output;
        }
        ADD_FAILURE() << "no output " << name;
        return {};
    }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const Output& output : desktop->outputs()) names.push_back(output.name);
        return names;
    }
    // Runs the main loop until the outputs are as they should be; a mistake lasts for ever.
    template <class Condition>
    void waitUntil(Condition isThere) {
        if (!isThere()) waitForChange(isThere);
    }
    // The same, looking only when there is said to be something new.
    template <class Condition>
    void waitForChange(Condition isThere) {
        desktop->onChange([&] {
            if (isThere()) loop.quit();
        });
        loop.run();
        desktop->onChange({});
    }

    static platform::TransferTable dimmed(std::size_t capacity = 256) {
        const std::vector<float> ramp(capacity, 0.5F);
        return {ramp, ramp, std::vector<float>(capacity, 0.25F)};
    }
    static platform::TransferTable plain(std::size_t capacity = 256) {
        std::vector<float> ramp;
        for (std::size_t index = 0; index < capacity; ++index) {
            ramp.push_back(static_cast<float>(index) / static_cast<float>(capacity - 1));
        }
        return {ramp, ramp, ramp};
    }

    runtime::RealScheduler scheduler;
    HurryingClock clock;
    runtime::MainLoop loop{scheduler};
    linux::DescriptorThread descriptors{loop};
    MockCompositor compositor;
    std::unique_ptr<WaylandDesktop> desktop;
    int changes = 0;
};

}  // namespace vantrel::wayland
