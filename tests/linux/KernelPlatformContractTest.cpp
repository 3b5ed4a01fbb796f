// The seam's contract, kept by the program's platform over an emulated kernel.
#include <gtest/gtest.h>

#include "linux/KernelComputer.h"
#include "platform/AVService.h"
#include "support/SeamBenches.h"
#include "support/SeamContract.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

class KernelSeam {
  public:
    explicit KernelSeam(const simulated::Desk& desk)
        : computer(desk, virtualLoop.time, virtualLoop.loop, linux::KernelComputer::BusTime::addsUp) {}

    test::VirtualLoop virtualLoop;
    linux::KernelComputer computer;
    platform::Platform platform = computer.linux->platform();
};

INSTANTIATE_TYPED_TEST_SUITE_P(KernelPlatform, SeamContract, SeamBenches<KernelSeam>);

// What the contract is kept upon.
TEST(KernelPlatform, HasItsMonitorsOnTheKernelsBuses) {
    KernelSeam seam(simulated::ordinaryDesk());
    const auto online = seam.platform.displays.onlineDisplays();
    unsigned services = 0;
    for (const platform::DisplayID display : online) {
        const void* service = seam.platform.functions.avCreate()(nullptr, display);
        if (service == nullptr) continue;
        const platform::AVService owned(seam.platform.registry, service);
        const std::vector<std::uint8_t> request{0x82, 0x01, 0x10, 0xAC};
        EXPECT_EQ(seam.platform.functions.avWrite()(service, 0x37, 0x51, request.data(), 4), 0);
        ++services;
    }
    EXPECT_EQ(online.size(), 3U);
    EXPECT_EQ(services, 2U);
    for (const platform::DisplayID display : {2U, 3U})
        EXPECT_EQ(seam.computer.kernel.monitor(display).counters().getRequests, 1U);
}

}  // namespace
}  // namespace vantrel
