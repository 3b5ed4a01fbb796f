#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/BuiltInDisplay.h"
#include "support/FakeSymbolLoader.h"
#include "support/Wakes.h"

namespace vantrel::model {
namespace {

using Calls = std::vector<std::string>;

const std::string library = "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";
constexpr platform::DisplayID panel = 0x8000'0001;

// The private functions are C functions, so they find their panel here.
Calls calls;
float panelLevel = 0;
std::int32_t readStatus = 0;
std::int32_t writeStatus = 0;

std::int32_t getLevel(std::uint32_t display, float* level) {
    calls.push_back("get " + std::to_string(display));
    *level = panelLevel;
    return readStatus;
}

std::int32_t setLevel(std::uint32_t display, float level) {
    calls.push_back("set " + std::to_string(display) + " to " + std::to_string(level));
    panelLevel = level;
    return writeStatus;
}

class BuiltInDisplayTest : public testing::Test {
  protected:
    BuiltInDisplayTest() {
        calls.clear();
        panelLevel = 0.75F;
        readStatus = writeStatus = 0;
    }
    void addGet() { loader.addSymbol(library, "DisplayServicesGetBrightness", getLevel); }
    void addSet() { loader.addSymbol(library, "DisplayServicesSetBrightness", setLevel); }
    std::shared_ptr<BuiltInDisplay> make() {
        addGet();
        addSet();
        auto display = BuiltInDisplay::make(functions, panel);
        calls.clear();
        return display;
    }

    test::FakeSymbolLoader loader;
    platform::PrivateFunctions functions{loader};
};

TEST_F(BuiltInDisplayTest, BeginsWithTheLevelOfThePanel) {
    addGet();
    const auto display = BuiltInDisplay::make(functions, panel);
    ASSERT_NE(display, nullptr);
    EXPECT_EQ(display->id(), panel);
    EXPECT_EQ(display->brightness(), 0.75F);
    EXPECT_EQ(calls, Calls{"get 2147483649"});
}

TEST_F(BuiltInDisplayTest, IsNotMadeWithoutTheFunctionThatReadsTheLevel) {
    addSet();
    EXPECT_EQ(BuiltInDisplay::make(functions, panel), nullptr);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(BuiltInDisplayTest, IsNotMadeWhenTheLevelCannotBeRead) {
    addGet();
    for (const std::int32_t status : {1, -1, -536870212}) {
        readStatus = status;
        EXPECT_EQ(BuiltInDisplay::make(functions, panel), nullptr);
    }
}

TEST_F(BuiltInDisplayTest, SettingNotesTheLevelAndSetsThePanel) {
    const auto display = make();
    display->setBrightness(0.25F);
    EXPECT_EQ(display->brightness(), 0.25F);
    EXPECT_EQ(calls, Calls{"set 2147483649 to 0.250000"});
}

TEST_F(BuiltInDisplayTest, SettingAnEqualLevelSetsThePanelAgainAndWakesNobody) {
    const auto display = make();
    EXPECT_FALSE(test::wakes([&] { return display->brightness(); }, [&] { display->setBrightness(0.75F); }));
    EXPECT_EQ(calls, Calls{"set 2147483649 to 0.750000"});
}

TEST_F(BuiltInDisplayTest, SettingAnotherLevelWakesItsReaders) {
    const auto display = make();
    EXPECT_TRUE(test::wakes([&] { return display->brightness(); }, [&] { display->setBrightness(0.5F); }));
}

TEST_F(BuiltInDisplayTest, EverySettingReachesThePanel) {
    const auto display = make();
    for (const float level : {0.1F, 0.2F, 0.2F, 0.3F}) display->setBrightness(level);
    EXPECT_EQ(calls.size(), 4U);
}

TEST_F(BuiltInDisplayTest, AFailedSettingIsIgnored) {
    const auto display = make();
    writeStatus = 1;
    display->setBrightness(0.25F);
    EXPECT_EQ(display->brightness(), 0.25F);
}

TEST_F(BuiltInDisplayTest, SettingWithoutTheFunctionForItOnlyNotesTheLevel) {
    addGet();
    const auto display = BuiltInDisplay::make(functions, panel);
    calls.clear();
    display->setBrightness(0.25F);
    EXPECT_EQ(display->brightness(), 0.25F);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(BuiltInDisplayTest, RefreshingPicksUpTheLevelOfThePanelAndDoesNotSetIt) {
    const auto display = make();
    panelLevel = 0.5F;
    EXPECT_TRUE(test::wakes([&] { return display->brightness(); }, [&] { display->refresh(); }));
    EXPECT_EQ(display->brightness(), 0.5F);
    EXPECT_EQ(calls, Calls{"get 2147483649"});
}

TEST_F(BuiltInDisplayTest, RefreshingAnUnchangedLevelWakesNobody) {
    const auto display = make();
    EXPECT_FALSE(test::wakes([&] { return display->brightness(); }, [&] { display->refresh(); }));
}

TEST_F(BuiltInDisplayTest, RefreshingKeepsTheLevelWhenThePanelCannotBeRead) {
    const auto display = make();
    panelLevel = 0.5F;
    readStatus = 1;
    EXPECT_FALSE(test::wakes([&] { return display->brightness(); }, [&] { display->refresh(); }));
    EXPECT_EQ(display->brightness(), 0.75F);
}

}  // namespace
}  // namespace vantrel::model
