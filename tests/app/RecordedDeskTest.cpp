#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

#include "app/RecordBench.h"
#include "ddc/AVServiceLocator.h"
#include "ddc/DDCChannel.h"
#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/ShippedDesks.h"
#include "storms/StormDesk.h"
#include "support/RandomSeeds.h"
#include "support/TestDesks.h"
#include "text/Hex.h"

namespace vantrel::app {
namespace {

using simulated::Desk;
using simulated::DisplayPlan;
using simulated::RegistryEntryPlan;
using testing::HasSubstr;
using testing::Not;

Desk shippedDesk(std::string_view name) {
    return std::get<Desk>(simulated::ShippedDesks::read(std::string(name)));
}

// Numbers that appear nowhere else.
void makeSerialsUnmistakable(Desk& desk) {
    std::uint32_t serial = 3'141'592'653;
    for (DisplayPlan& display : desk.displays) {
        if (display.serial != 0) display.serial = serial += 1'001;
    }
    for (RegistryEntryPlan& entry : desk.registry) {
        const auto attributes = entry.properties.find("DisplayAttributes");
        const auto isIts = [&entry](const DisplayPlan& display) { return display.id == entry.display; };
        const auto display = std::find_if(desk.displays.begin(), desk.displays.end(), isIts);
        if (attributes == entry.properties.end() || display == desk.displays.end()) continue;
        attributes->second = simulated::framebufferEntry(*display).properties.at("DisplayAttributes");
    }
}

void expectNoSerials(const Desk& desk, const Recorded& recorded) {
    for (const DisplayPlan& display : desk.displays) {
        if (display.serial == 0) continue;
        for (const std::string& number : {std::to_string(display.serial), text::lowerHex(display.serial),
                                          text::upperHex(display.serial)}) {
            EXPECT_THAT(recorded.file, Not(HasSubstr(number)));
            EXPECT_THAT(recorded.probed.output, Not(HasSubstr(number)));
            EXPECT_THAT(recorded.probed.log, Not(HasSubstr(number)));
        }
    }
}

std::string withoutSerials(const std::string& output) {
    return std::regex_replace(output, std::regex(", serial [1-9][0-9]*"), ", serial N");
}

class RecordedShippedDesk : public testing::TestWithParam<std::string_view> {};

TEST_P(RecordedShippedDesk, ReplaysByteByByte) { expectToReplay(record(shippedDesk(GetParam()))); }

TEST_P(RecordedShippedDesk, PrintsAndLogsWhatTheRealOneDoesButForSerialNumbers) {
    const Recorded recorded = record(shippedDesk(GetParam()));
    const Probed real = probe(shippedDesk(GetParam()));
    EXPECT_EQ(withoutSerials(recorded.probed.output), withoutSerials(real.output));
    EXPECT_EQ(recorded.probed.log, real.log);
    EXPECT_EQ(recorded.probed.end, real.end);
}

TEST_P(RecordedShippedDesk, HasNoSerialNumberOfTheRealOne) {
    Desk desk = shippedDesk(GetParam());
    makeSerialsUnmistakable(desk);
    const Recorded recorded = record(desk);
    expectNoSerials(desk, recorded);
    expectToReplay(recorded);
}

std::vector<std::string_view> shippedNames() {
    std::vector<std::string_view> names;
    for (const auto& entry : simulated::ShippedDesks::list()) names.push_back(entry.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Desks, RecordedShippedDesk, testing::ValuesIn(shippedNames()),
                         [](const auto& tested) { return std::string(tested.param); });

TEST(RecordedDesk, ReplaysRandomDesks) {
    test::forRandomSeeds(60, [](std::uint64_t seed) {
        storms::Counts counts;
        Desk desk = storms::StormDesk::any(simulated::Random(seed), counts).desk;
        makeSerialsUnmistakable(desk);
        const Recorded recorded = record(desk);
        expectNoSerials(desk, recorded);
        expectToReplay(recorded);
    });
}

TEST(RecordedDesk, HasWhatTheProbeSaw) {
    const Desk desk = record(test::usualDesk()).desk;
    EXPECT_EQ(desk.title, "Recorded desk");
    ASSERT_EQ(desk.displays.size(), 3U);
    const DisplayPlan& panel = desk.displays[0];
    EXPECT_TRUE(panel.isBuiltIn);
    EXPECT_EQ(panel.name, "Built-in Display");
    EXPECT_FALSE(panel.monitor);
    const DisplayPlan& birch = desk.displays[2];
    EXPECT_EQ(birch.id, 3U);
    EXPECT_EQ(birch.name, "Birch");
    EXPECT_EQ(birch.vendor, 1000U);
    EXPECT_EQ(birch.product, 23U);
    EXPECT_EQ(birch.serial, 2U);
    ASSERT_TRUE(birch.monitor);
    EXPECT_EQ(birch.monitor->features.at(0x12).current, 70);
    EXPECT_EQ(birch.monitor->capabilities, test::monitorPlan(3, "").monitor->capabilities);
    EXPECT_EQ(birch.monitor->inputs, test::monitorPlan(3, "").monitor->inputs);
    EXPECT_EQ(desk.missingSymbols, std::vector<std::string>());
}

TEST(RecordedDesk, GivesALinkThatBelongsToNoDisplayOneThatIsOff) {
    Desk desk = test::usualDesk();
    desk.displays[2].isOn = false;
    const Recorded recorded = record(desk);
    expectToReplay(recorded);
    ASSERT_EQ(recorded.desk.displays.size(), 3U);
    const DisplayPlan& off = recorded.desk.displays[2];
    EXPECT_EQ(off.id, 3U);
    EXPECT_EQ(off.name, "Birch");
    EXPECT_FALSE(off.isOn);
    EXPECT_TRUE(off.monitor);
}

TEST(RecordedDesk, KeepsNoNameOfAScreen) {
    Desk desk = test::usualDesk();
    DisplayPlan tablet;
    tablet.id = 9;
    tablet.name = "Anna's tablet";
    desk.displays.push_back(tablet);
    desk.displays[0].name = "Anna's panel";
    desk.displays[1].name = "Anna's monitor";
    const Recorded recorded = record(desk);
    EXPECT_THAT(recorded.file, Not(HasSubstr("Anna")));
    EXPECT_EQ(recorded.desk.displays[1].name, "Alder");
    EXPECT_EQ(recorded.desk.displays[3].name, "Display");
    expectToReplay(recorded);
}

TEST(RecordedDesk, TellsMonitorsOfOneModelApartByTheRestOfTheirUUID) {
    Desk desk = test::deskOf({test::monitorPlan(2, "Alder"), test::monitorPlan(3, "Birch")});
    for (DisplayPlan& display : desk.displays) {
        display.product = 7;
        display.serial = 0;
        display.edidUUID = "03E80700-0000-0000-2A1F-AFFE00000" + std::to_string(100 + display.id);
    }
    desk.registry = simulated::defaultRegistry(desk.displays);
    const Recorded recorded = record(desk);
    EXPECT_THAT(recorded.file, HasSubstr("03E80700-0000-0000-0000-000000000001"));
    EXPECT_THAT(recorded.file, HasSubstr("03E80700-0000-0000-0000-000000000002"));
    EXPECT_THAT(recorded.file, Not(HasSubstr("AFFE")));
    expectToReplay(recorded);
}

TEST(RecordedDesk, LacksTheFunctionsThatTheSystemLacks) {
    for (const char* symbol :
         {"IOAVServiceCreateWithService", "IOAVServiceWriteI2C", "IOAVServiceReadI2C",
          "CGSConfigureDisplayEnabled", "DisplayServicesGetBrightness", "DisplayServicesSetBrightness"}) {
        Desk desk = test::usualDesk();
        desk.missingSymbols = {symbol};
        const Recorded recorded = record(desk);
        EXPECT_EQ(recorded.desk.missingSymbols, desk.missingSymbols);
        expectToReplay(recorded);
    }
}

TEST(RecordedDesk, HasWhatWasInTheWayOfTheMonitors) {
    Desk desk = test::usualDesk();
    desk.obstacles = {"A cable is in the way.", "So is a \"100 %@\" driver."};
    const Recorded recorded = record(desk);
    EXPECT_EQ(recorded.desk.obstacles, desk.obstacles);
    EXPECT_THAT(recorded.probed.output,
                testing::EndsWith("\nA cable is in the way.\nSo is a \"100 %@\" driver.\n"));
    expectToReplay(recorded);
}

TEST(RecordedDesk, IsEmptyWhereThereIsNothing) {
    const Recorded recorded = record(Desk());
    EXPECT_EQ(recorded.desk.displays, std::vector<DisplayPlan>());
    expectToReplay(recorded);
}

TEST(RecordedDesk, IsOneToUse) {
    const Desk recorded = record(test::usualDesk()).desk;
    Desk desk = readBack(simulated::DeskWriter::text(recorded));
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(desk, time, loop);
    std::ostringstream lines;
    ConsoleLog log(time, lines, platform::LogLevel::debug);
    platform::Platform platform = simulated.platform(log);
    const auto links = ddc::AVServiceLocator::externalServices(platform.registry, platform.functions);
    ASSERT_EQ(links.size(), 2U);
    ddc::DDCChannel channel(ddc::Transport(platform), links.front(), "monitor");
    using Result = ddc::DDCChannel::ReadResult;
    // Not what the probe asked first.
    EXPECT_EQ(channel.read(0x62, 1), Result::value({20, 100}));
    EXPECT_TRUE(channel.write(0x10, 33));
    EXPECT_EQ(channel.read(0x10, 1), Result::value({33, 100}));
    EXPECT_TRUE(channel.write(0x60, test::otherInput));
    EXPECT_EQ(simulated.monitor(2).shownInput(), test::otherInput);
    EXPECT_EQ(channel.read(0x12, 1), Result::value({70, 100}));
    EXPECT_EQ(channel.capabilities(), test::monitorPlan(2, "").monitor->capabilities);
}

}  // namespace
}  // namespace vantrel::app
