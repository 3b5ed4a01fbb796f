#include <gtest/gtest.h>

#include "platform/simulated/InputSelector.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using runtime::MonotonicTime;

constexpr MonotonicTime start{};

class InputSelectorTest : public testing::Test {
  protected:
    InputSelector selector() const { return {{0x0F, 0x0F, {0x0F, 0x11, 0x12}}, personality}; }

    Personality personality;
    Random random{1};
};

TEST_F(InputSelectorTest, ShowsARequestedInputAtOnceByDefault) {
    InputSelector inputs = selector();
    EXPECT_EQ(inputs.request(0x11, start, random), std::nullopt);
    EXPECT_EQ(inputs.shown(start), 0x11);
    EXPECT_TRUE(inputs.isOnBus(start));
    EXPECT_FALSE(inputs.isSilent(start));
}

TEST_F(InputSelectorTest, IgnoresAnInputThatItDoesNotHave) {
    InputSelector inputs = selector();
    inputs.request(0x05, start, random);
    inputs.press(0x05, start);
    EXPECT_EQ(inputs.shown(start), 0x0F);
}

TEST_F(InputSelectorTest, ReadsAnInputAsItsReadingSays) {
    personality.inputReadings = {{0x0F, 0x0F0F}};
    InputSelector inputs = selector();
    EXPECT_EQ(inputs.reading(start), 0x0F0F);
    inputs.request(0x11, start, random);
    EXPECT_EQ(inputs.reading(start), 0x11);
}

TEST_F(InputSelectorTest, HasItsGreatestInputAsMaximum) { EXPECT_EQ(selector().maximum(), 0x12); }

TEST_F(InputSelectorTest, ShowsTheOldInputUntilTheSwitchIsOver) {
    personality.inputSwitch.time = 3s;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    EXPECT_EQ(inputs.shown(start + 2999ms), 0x0F);
    EXPECT_EQ(inputs.shown(start + 3s), 0x11);
}

TEST_F(InputSelectorTest, DoesNotStartAgainWhenTheRequestIsRepeated) {
    personality.inputSwitch.time = 3s;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    inputs.request(0x11, start + 1s, random);
    EXPECT_EQ(inputs.shown(start + 3s), 0x11);
}

TEST_F(InputSelectorTest, TurnsToAnotherInputInTheMiddleOfASwitch) {
    personality.inputSwitch.time = 3s;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    inputs.request(0x12, start + 1s, random);
    EXPECT_EQ(inputs.shown(start + 3s), 0x0F);
    EXPECT_EQ(inputs.shown(start + 4s), 0x12);
}

TEST_F(InputSelectorTest, IsSilentWhileItSwitchesIfThatIsItsManner) {
    personality.inputSwitch.time = 3s;
    personality.inputSwitch.silent = true;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    EXPECT_TRUE(inputs.isSilent(start));
    EXPECT_FALSE(inputs.isSilent(start + 3s));
}

TEST_F(InputSelectorTest, IsSilentOnAnotherInputIfThatIsItsManner) {
    personality.silentOnOtherInputs = true;
    InputSelector inputs = selector();
    EXPECT_FALSE(inputs.isSilent(start));
    inputs.request(0x11, start, random);
    EXPECT_TRUE(inputs.isSilent(start));
    inputs.press(0x0F, start + 1s);
    EXPECT_FALSE(inputs.isSilent(start + 1s));
}

TEST_F(InputSelectorTest, ReturnsToTheOldInputWhenTheTimeIsOver) {
    personality.inputSwitch.time = 3s;
    personality.inputSwitch.returns.every = 1;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    EXPECT_EQ(inputs.shown(start + 3s), 0x0F);
}

TEST_F(InputSelectorTest, IgnoresARequestWithItsRepeatAsOneOccasion) {
    personality.inputSwitch.ignored.first = 1;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    inputs.request(0x11, start + 10ms, random);
    EXPECT_EQ(inputs.shown(start + 1s), 0x0F);
    inputs.request(0x11, start + 1s, random);
    EXPECT_EQ(inputs.shown(start + 1s), 0x11);
}

TEST_F(InputSelectorTest, IsOffTheBusForThePulse) {
    personality.inputSwitch.pulse = 2s;
    personality.inputSwitch.pulseAfter = 1s;
    InputSelector inputs = selector();
    EXPECT_EQ(inputs.request(0x11, start, random), (Pulse{start + 1s, start + 3s}));
    EXPECT_TRUE(inputs.isOnBus(start + 999ms));
    EXPECT_FALSE(inputs.isOnBus(start + 1s));
    EXPECT_FALSE(inputs.isOnBus(start + 2999ms));
    EXPECT_TRUE(inputs.isOnBus(start + 3s));
}

TEST_F(InputSelectorTest, DoesNotPulseForTheInputThatItShows) {
    personality.inputSwitch.pulse = 2s;
    EXPECT_EQ(selector().request(0x0F, start, random), std::nullopt);
}

TEST_F(InputSelectorTest, ObeysItsButtonWhenItIgnoresRequests) {
    personality.inputSwitch.ignored.every = 1;
    personality.inputSwitch.returns.every = 1;
    InputSelector inputs = selector();
    inputs.press(0x11, start);
    EXPECT_EQ(inputs.shown(start), 0x11);
}

TEST_F(InputSelectorTest, EndsAPulseUnderWayThatAButtonMeets) {
    personality.inputSwitch.pulse = 2s;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    EXPECT_EQ(inputs.press(0x12, start + 1s), std::nullopt);
    EXPECT_FALSE(inputs.isOnBus(start + 1s));
    EXPECT_TRUE(inputs.isOnBus(start + 2s));
}

TEST_F(InputSelectorTest, SwitchesSoundlyOnceHealthy) {
    personality.inputSwitch = {3s, true, 2s, 1s, {0, 1, 0}, {}};
    personality.silentOnOtherInputs = true;
    InputSelector inputs = selector();
    inputs.request(0x11, start, random);
    inputs.becomeHealthy(start);
    EXPECT_FALSE(inputs.isSilent(start));
    EXPECT_TRUE(inputs.isOnBus(start + 1s));
    EXPECT_EQ(inputs.shown(start + 3s), 0x11);
    EXPECT_FALSE(inputs.isSilent(start + 3s));
    inputs.request(0x0F, start + 3s, random);
    EXPECT_EQ(inputs.shown(start + 3s), 0x0F);
}

}  // namespace
}  // namespace vantrel::simulated
