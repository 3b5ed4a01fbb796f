#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "platform/simulated/ShippedDesks.h"

namespace vantrel::simulated {
namespace {

using testing::Contains;
using testing::Field;
using testing::SizeIs;

std::filesystem::path desksFolder() {
    return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path() / "desks";
}

Desk shipped(std::string_view name) {
    DeskFileResult result = ShippedDesks::read(name);
    if (const auto* error = std::get_if<DeskFileError>(&result)) {
        ADD_FAILURE() << error->line();
        return {};
    }
    return std::get<Desk>(std::move(result));
}

std::vector<std::string> shippedNames() {
    std::vector<std::string> names;
    for (const ShippedDesks::Entry& entry : ShippedDesks::list()) names.emplace_back(entry.name);
    return names;
}

// The codes of the capabilities' vcp section, without the values in inner parentheses.
std::set<unsigned long> listedCodes(const std::string& capabilities) {
    std::set<unsigned long> codes;
    int depth = 1;
    for (std::size_t index = capabilities.find("vcp(") + 4; depth > 0 && index < capabilities.size();
         ++index) {
        if (capabilities[index] == '(') ++depth;
        if (capabilities[index] == ')') --depth;
        if (depth == 1 && std::isxdigit(static_cast<unsigned char>(capabilities[index])) != 0) {
            codes.insert(std::stoul(capabilities.substr(index, 2), nullptr, 16));
            ++index;
        }
    }
    return codes;
}

std::set<unsigned long> answeredCodes(const MonitorPlan& monitor) {
    std::set<unsigned long> codes;
    for (const auto& [code, feature] : monitor.features) {
        if (!feature.unsupported) codes.insert(code);
    }
    if (monitor.inputs) codes.insert(0x60);
    return codes;
}

// Every key and every text of a JSON tree.
void collectWords(const nlohmann::json& value, std::set<std::string>& words) {
    if (value.is_string()) words.insert(value.get<std::string>());
    if (value.is_object()) {
        for (const auto& [key, member] : value.items()) words.insert(key);
    }
    if (value.is_structured()) {
        for (const auto& member : value) collectWords(member, words);
    }
}

TEST(ShippedDesks, AreTheDesksOfTheFolder) {
    std::set<std::string> inFolder;
    for (const auto& file : std::filesystem::directory_iterator(desksFolder())) {
        inFolder.insert(file.path().stem().string());
    }
    const auto names = shippedNames();
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), inFolder);
    EXPECT_THAT(names, SizeIs(inFolder.size()));
}

TEST(ShippedDesks, HaveTheFilesTextsByteForByte) {
    for (const std::string& name : shippedNames()) {
        std::ifstream file(desksFolder() / (name + ".json"), std::ios::binary);
        std::stringstream text;
        text << file.rdbuf();
        EXPECT_EQ(ShippedDesks::text(name), text.str()) << name;
    }
}

TEST(ShippedDesks, BeginWithTheDefault) {
    EXPECT_THAT(shippedNames(), testing::ElementsAre("default", "hostile", "inputs", "large", "slow",
                                                     "stubborn", "twins", "wake"));
}

TEST(ShippedDesks, HaveATitleAndADescriptionOfOneLine) {
    for (const ShippedDesks::Entry& entry : ShippedDesks::list()) {
        EXPECT_NE(shipped(entry.name).title, "") << entry.name;
        EXPECT_NE(entry.description, "") << entry.name;
        EXPECT_EQ(entry.description.find('\n'), std::string::npos) << entry.name;
    }
}

TEST(ShippedDesks, HaveNoTextForAnUnknownName) {
    EXPECT_EQ(ShippedDesks::text("nobody"), std::nullopt);
    EXPECT_EQ(ShippedDesks::text(""), std::nullopt);
    EXPECT_EQ(ShippedDesks::text("default.json"), std::nullopt);
}

TEST(ShippedDesks, ReadAFileWhenTheNameIsNoneOfTheirs) {
    const DeskFileResult result = ShippedDesks::read((desksFolder() / "twins.json").string());
    ASSERT_TRUE(std::holds_alternative<Desk>(result));
    EXPECT_EQ(std::get<Desk>(result).title, "Twins");
}

TEST(ShippedDesks, SayWhatIsWrongWithAFileThatIsNotThere) {
    const DeskFileResult result = ShippedDesks::read("no-such-desk");
    ASSERT_TRUE(std::holds_alternative<DeskFileError>(result));
    EXPECT_EQ(std::get<DeskFileError>(result).line(), "no-such-desk: No such file or directory");
}

TEST(ShippedDesks, ListInTheirCapabilitiesWhatTheirMonitorsAnswer) {
    for (const std::string& name : shippedNames()) {
        if (name == "hostile") continue;
        for (const DisplayPlan& display : shipped(name).displays) {
            if (!display.monitor || !display.monitor->capabilities) continue;
            EXPECT_EQ(listedCodes(*display.monitor->capabilities), answeredCodes(*display.monitor))
                << name << ": " << display.name;
        }
    }
}

TEST(ShippedDesks, GiveTheDefaultDeskAGoodMonitor) {
    const Desk desk = shipped("default");
    ASSERT_THAT(desk.displays, SizeIs(5));
    const auto& good = desk.displays[1].monitor;
    ASSERT_TRUE(good);
    EXPECT_EQ(good->personality, Personality{});
    EXPECT_THAT(good->features, SizeIs(testing::Ge(20U)));
}

TEST(ShippedDesks, GiveTheDefaultDeskAMonitorThatMisreportsItsInputs) {
    const Desk desk = shipped("default");
    ASSERT_THAT(desk.displays, Contains(Field(&DisplayPlan::vendor, 0x0472U)));
    const DisplayPlan& display = desk.displays[2];
    EXPECT_EQ(display.product, 0x0782U);
    ASSERT_TRUE(display.monitor && display.monitor->inputs);
    EXPECT_EQ(display.monitor->inputs->available, (std::vector<std::uint16_t>{0x0F, 0x11, 0x12}));
    EXPECT_EQ(display.monitor->personality.inputReadings,
              (std::map<std::uint16_t, std::uint16_t>{{0x11, 1}, {0x0F, 3}, {0x12, 4}}));
}

TEST(ShippedDesks, GiveTheDefaultDeskAMonitorWithoutCapabilitiesADeadOneAndAPanel) {
    const Desk desk = shipped("default");
    ASSERT_THAT(desk.displays, SizeIs(5));
    ASSERT_TRUE(desk.displays[3].monitor && desk.displays[4].monitor);
    EXPECT_EQ(desk.displays[3].monitor->capabilities, std::nullopt);
    EXPECT_FALSE(desk.displays[3].monitor->personality.dead);
    EXPECT_TRUE(desk.displays[4].monitor->personality.dead);
    EXPECT_TRUE(desk.displays[0].isBuiltIn);
    EXPECT_TRUE(desk.displays[0].brightness);
}

TEST(ShippedDesks, HaveTwinsThatOnlyTheirIDsTellApart) {
    const Desk desk = shipped("twins");
    ASSERT_THAT(desk.displays, SizeIs(3));
    const DisplayPlan& first = desk.displays[1];
    const DisplayPlan& second = desk.displays[2];
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(first.vendor, second.vendor);
    EXPECT_EQ(first.product, second.product);
    EXPECT_EQ(first.name, second.name);
    EXPECT_EQ(first.serial, 0U);
    EXPECT_EQ(second.serial, 0U);
}

TEST(ShippedDesks, HaveALargeOneWithSixteenMonitors) {
    const Desk desk = shipped("large");
    EXPECT_EQ(std::count_if(desk.displays.begin(), desk.displays.end(),
                            [](const DisplayPlan& display) { return !display.isBuiltIn; }),
              16);
}

TEST(ShippedDesks, HaveAHostileOneWithEveryFaultThatThereIs) {
    std::set<std::string> used;
    collectWords(nlohmann::json::parse(*ShippedDesks::text("hostile")), used);
    // A probability is written as a plain number.
    used.insert("probability");
    // No faults: how a desk was recorded.
    used.insert(
        {"isOn", "obstacles", "recording", "atMs", "tookMs", "write", "read", "chip", "address", "status"});
    for (const DeskFile::Words& words : DeskFile::vocabulary()) {
        for (const std::string_view word : words.words) EXPECT_THAT(used, Contains(word)) << words.heading;
    }
}

}  // namespace
}  // namespace vantrel::simulated
