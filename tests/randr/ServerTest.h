// The base of tests on an X server of their own: three lit outputs in a row, DUMMY0 the
// primary one, and a dark one, DUMMY3. `with_xorg.py` starts the server.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "OtherClient.h"
#include "Xrandr.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/randr/RandRDesktop.h"
#include "runtime/Fatal.h"
#include "runtime/RealScheduler.h"

namespace vantrel::randr {

inline std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    runtime::require(value != nullptr, "these tests are run by tests/randr/with_xorg.py");
    return value;
}

// In real time, since the server is another process; nothing depends on how long it takes.
class ServerTest : public testing::Test {
  protected:
    // Reached by failures only.
    static constexpr std::chrono::seconds patience{10};

    ServerTest() {
        const std::string plain = " --rotate normal --reflect normal --scale 1x1 --panning 0x0 ";
        xrandr.run("--output DUMMY0 --off --output DUMMY1 --off --output DUMMY2 --off --output DUMMY3 --off");
        // xrandr loses some of the density with each change, until it is none at all.
        xrandr.expect("--dpi 96 --output DUMMY0 --crtc 0 --mode 1920x1080 --pos 0x0 --primary" + plain +
                      "--output DUMMY1 --crtc 1 --mode 1920x1080 --pos 1920x0" + plain +
                      "--output DUMMY2 --crtc 2 --mode 1280x1024 --pos 3840x0" + plain);
        xrandr.expect("--output DUMMY0 --gamma 1 --output DUMMY1 --gamma 1 --output DUMMY2 --gamma 1");
        desktop = RandRDesktop::open(display, descriptors, loop);
    }

    linux::Desktop::Output output(const std::string& name) const {
        const auto all = desktop->outputs();
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const auto& it) { return it.name == name; });
        EXPECT_NE(found, all.end()) << name;
        return found == all.end() ? linux::Desktop::Output() : *found;
    }
    // Until `quit`; a failure when that never comes.
    void run() {
        bool isLate = false;
        const auto end = loop.after(patience, [&] {
            isLate = true;
            loop.quit();
        });
        loop.run();
        loop.cancel(end);
        EXPECT_FALSE(isLate);
    }
    static platform::TransferTable table(float scale, std::size_t size = 256) {
        platform::TransferTable table;
        for (std::size_t index = 0; index < size; ++index) {
            const float value = static_cast<float>(index) / static_cast<float>(size - 1);
            table.red.push_back(value * scale);
            table.green.push_back(value * value * scale);
            table.blue.push_back(value * scale / 3);
        }
        return table;
    }

    const std::string display = environment("DISPLAY");
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    linux::DescriptorThread descriptors{loop};
    Xrandr xrandr{display};
    OtherClient other{display};
    std::unique_ptr<RandRDesktop> desktop;
};

}  // namespace vantrel::randr
