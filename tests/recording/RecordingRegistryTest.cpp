#include <gtest/gtest.h>

#include "platform/simulated/DefaultRegistry.h"
#include "recording/RecordingBench.h"

namespace vantrel::recording {
namespace {

using platform::PropertyDictionary;
using simulated::RegistryEntryPlan;

// An entry of each kind, of which the framebuffer and the proxy are a monitor's.
simulated::Desk deskOfAFewEntries() {
    simulated::Desk desk = simulated::ordinaryDesk();
    simulated::DisplayPlan& display = desk.displays[1];
    display.serial = 28000417;
    RegistryEntryPlan proxy = simulated::proxyEntry(display);
    proxy.properties["Owner"] = "Anna";
    desk.registry = {
        {RegistryEntryPlan::Kind::other, "other", 0, {}}, simulated::framebufferEntry(display), proxy};
    return desk;
}

TEST(RecordingRegistry, RecordsNothingOfEntriesOfWhichOnlyTheNameIsAsked) {
    RecordingBench bench;
    const auto walk = bench.platform.registry.iterateServicePlane();
    while (const auto entry = walk->next()) EXPECT_NE(entry->name(), "");
    EXPECT_EQ(bench.recorder.recording().entries(), std::vector<Recording::Entry>());
}

TEST(RecordingRegistry, RecordsWhatWasAskedForAsItWasShown) {
    RecordingBench bench(deskOfAFewEntries());
    const auto walk = bench.platform.registry.iterateServicePlane();
    walk->next();
    const auto framebuffer = walk->next();
    const auto shown = framebuffer->property("DisplayAttributes");
    EXPECT_EQ(framebuffer->property("nothing"), std::nullopt);
    const auto proxy = walk->next();
    EXPECT_EQ(proxy->property("Location"), platform::PropertyValue("External"));
    EXPECT_EQ(walk->next(), nullptr);
    ASSERT_TRUE(shown);
    EXPECT_EQ(bench.recorder.recording().entries(),
              (std::vector<Recording::Entry>{
                  {"IOMobileFramebufferShim", {{"DisplayAttributes", *shown}}, std::nullopt},
                  {"DCPAVServiceProxy", {{"Location", "External"}}, std::nullopt}}));
}

TEST(RecordingRegistry, HidesAPropertyThatMayTellMore) {
    RecordingBench bench(deskOfAFewEntries());
    const auto walk = bench.platform.registry.iterateServicePlane();
    while (const auto entry = walk->next()) EXPECT_EQ(entry->property("Owner"), std::nullopt);
    for (const Recording::Entry& entry : bench.recorder.recording().entries())
        EXPECT_EQ(entry.properties, PropertyDictionary());
}

TEST(RecordingRegistry, GivesServicesBack) {
    RecordingBench bench;
    {
        auto walk = bench.platform.registry.iterateServicePlane();
        auto entry = walk->next();
        while (entry->name() != "DCPAVServiceProxy" ||
               entry->property("Location") != platform::PropertyValue("External"))
            entry = walk->next();
        const platform::AVService service(bench.platform.registry,
                                          bench.platform.functions.avCreate()(nullptr, entry->object()));
        EXPECT_EQ(bench.real.simulated.liveServices(), 1U);
    }
    EXPECT_EQ(bench.real.simulated.liveServices(), 0U);
}

TEST(RecordingRegistry, HasNoWalkWhereThereIsNone) {
    struct NoRegistry : platform::Registry {
        std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override { return nullptr; }
        void releaseService(const void*) override {}
    } real;
    RecordingBench bench;
    Disguise disguise;
    Recording recording(bench.real.time);
    EXPECT_EQ(RecordingRegistry(real, disguise, recording).iterateServicePlane(), nullptr);
}

}  // namespace
}  // namespace vantrel::recording
