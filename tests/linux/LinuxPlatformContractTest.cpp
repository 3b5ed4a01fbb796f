#include <gtest/gtest.h>
#include <vector>

#include "linux/LinuxBench.h"
#include "platform/AVService.h"
#include "support/SeamBenches.h"
#include "support/SeamContract.h"

namespace vantrel {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(LinuxPlatform, SeamContract, SeamBenches<linux::LinuxBench>);

// What the contract is kept upon.
TEST(LinuxBench, LeadsToTheMonitorsHoweverTheirConnectorsNameTheirBuses) {
    linux::LinuxBench bench(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder"),
                                          test::monitorPlan(3, "Birch"), test::monitorPlan(4, "Cedar")}));
    EXPECT_EQ(bench.platform.displays.onlineDisplays().size(), 4);
    for (const platform::DisplayID display : {2U, 3U, 4U}) {
        const auto id = bench.id(display);
        ASSERT_TRUE(id);
        const platform::AVService service(bench.platform.registry,
                                          bench.platform.functions.avCreate()(nullptr, *id));
        ASSERT_NE(service.get(), nullptr);
        const std::vector<std::uint8_t> request{0x82, 0x01, 0x10, 0xAC};
        EXPECT_EQ(bench.platform.functions.avWrite()(service.get(), 0x37, 0x51, request.data(), 4), 0);
        EXPECT_EQ(bench.hardware.monitor(display).counters().getRequests, 1);
    }
}

}  // namespace
}  // namespace vantrel
