// Whoever uses a platform doesn't notice that it is recorded.
#include <gtest/gtest.h>

#include "platform/simulated/DefaultRegistry.h"
#include "recording/RecordingBench.h"
#include "support/SeamBenches.h"
#include "support/SeamContract.h"

namespace vantrel {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(RecordingPlatform, SeamContract, SeamBenches<recording::RecordingBench>);

}  // namespace

namespace recording {
namespace {

TEST(RecordingPlatform, HasWhatTheRealOneHas) {
    RecordingBench bench;
    EXPECT_EQ(&bench.platform.scheduler, &bench.real.platform.scheduler);
    EXPECT_EQ(&bench.platform.mainLoop, &bench.real.platform.mainLoop);
    EXPECT_EQ(&bench.platform.baseTables, &bench.real.platform.baseTables);
    EXPECT_EQ(&bench.platform.defaults, &bench.real.platform.defaults);
    EXPECT_EQ(&bench.platform.workspace, &bench.real.platform.workspace);
    EXPECT_EQ(&bench.platform.localizer, &bench.real.platform.localizer);
    EXPECT_EQ(&bench.platform.loginItem, &bench.real.platform.loginItem);
}

TEST(RecordingPlatform, ShowsOneSerialNumberInTheRegistryAndOfTheDisplay) {
    simulated::Desk desk = simulated::ordinaryDesk();
    desk.displays[1].serial = 28000417;
    desk.registry = simulated::defaultRegistry(desk.displays);
    RecordingBench bench(desk);
    const auto walk = bench.platform.registry.iterateServicePlane();
    const platform::PropertyDictionary product{{"SerialNumber", 1}, {"ProductName", desk.displays[1].name}};
    const platform::PropertyValue expected = platform::PropertyDictionary{{"ProductAttributes", product}};
    bool isThere = false;
    while (const auto entry = walk->next())
        isThere = isThere || entry->property("DisplayAttributes") == expected;
    EXPECT_TRUE(isThere);
    EXPECT_EQ(bench.platform.displays.serialNumber(2), 1U);
}

}  // namespace
}  // namespace recording
}  // namespace vantrel
