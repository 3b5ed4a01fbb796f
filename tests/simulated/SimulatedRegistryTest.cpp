#include <gtest/gtest.h>

#include "platform/simulated/SimulatedRegistry.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

using Names = std::vector<std::string>;

Names walk(DeskBench& bench) {
    Names names;
    auto iterator = bench.platform.registry.iterateServicePlane();
    while (const auto entry = iterator->next()) names.push_back(entry->name());
    return names;
}

TEST(SimulatedRegistry, WalksTheEntriesInTheOrderOfTheDesk) {
    DeskBench bench;
    EXPECT_EQ(walk(bench), (Names{"AppleARMPE", "AppleCLCD2", "DCPAVServiceProxy", "AppleCLCD2",
                                  "DCPAVServiceProxy", "AppleCLCD2", "DCPAVServiceProxy"}));
}

TEST(SimulatedRegistry, LeavesTheEntriesOfAnUnpluggedDisplayOut) {
    DeskBench bench;
    bench.world().unplug(2);
    EXPECT_EQ(walk(bench).size(), 5);
}

TEST(SimulatedRegistry, KeepsTheEntriesOfADisplayWhoseOutputIsOff) {
    DeskBench bench;
    bench.setOutput(2, platform::DisplayToggler::Output::off);
    EXPECT_EQ(walk(bench).size(), 7);
}

TEST(SimulatedRegistry, SeesAChangeInTheMiddleOfAWalk) {
    DeskBench bench;
    auto iterator = bench.platform.registry.iterateServicePlane();
    iterator->next();
    bench.world().unplug(2);
    bench.world().unplug(3);
    EXPECT_EQ(iterator->next()->name(), "AppleCLCD2");
    EXPECT_EQ(iterator->next()->name(), "DCPAVServiceProxy");
    EXPECT_EQ(iterator->next(), nullptr);
    EXPECT_EQ(iterator->next(), nullptr);
}

TEST(SimulatedRegistry, GivesPropertiesAsTheDeskSays) {
    Desk desk = ordinaryDesk();
    desk.registry[3].properties = {
        {"EDID UUID", std::int64_t{5}},
        {"DisplayAttributes",
         platform::PropertyDictionary{{"ProductAttributes", platform::PropertyValue{}}}}};
    DeskBench bench(desk);
    const auto entry = bench.entry(3);
    EXPECT_EQ(entry->property("EDID UUID"), platform::PropertyValue{std::int64_t{5}});
    EXPECT_EQ(entry->property("DisplayAttributes"), platform::PropertyValue{(platform::PropertyDictionary{
                                                        {"ProductAttributes", platform::PropertyValue{}}})});
    EXPECT_EQ(entry->property("Location"), std::nullopt);
}

TEST(SimulatedRegistry, CutsANameAtItsFirstNulAndAt127Bytes) {
    Desk desk = ordinaryDesk();
    desk.registry[0].name = std::string("Apple\0ARM", 9);
    desk.registry[1].name = std::string(200, '\xFF');
    DeskBench bench(desk);
    EXPECT_EQ(bench.entry(0)->name(), "Apple");
    EXPECT_EQ(bench.entry(1)->name(), std::string(127, '\xFF'));
}

}  // namespace
}  // namespace vantrel::simulated
