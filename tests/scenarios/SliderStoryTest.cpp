// People drag sliders faster than any monitor can follow.
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

#include "scenarios/Stories.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using test::DeskStory;

constexpr std::uint8_t brightness = 0x10;
constexpr std::uint8_t contrast = 0x12;
constexpr std::uint8_t volume = 0x62;

// A second from the left end to the right one.
std::vector<std::uint16_t> allTheWay() {
    std::vector<std::uint16_t> values(100);
    std::iota(values.begin(), values.end(), std::uint16_t{1});
    return values;
}

TEST_P(SliderStory, ADragArrivesInAFewStepsAndEndsWhereItIsLetGo) {
    DeskStory story = at(test::usualDesk());
    for (const std::uint8_t code : {brightness, contrast, volume}) {
        const auto before = story.monitor(2).counters().setRequests;
        auto values = allTheWay();
        values.push_back(42);
        story.drags(2, code, values);
        story.waits(1s);
        EXPECT_EQ(story.monitor(2).value(code), 42);
        EXPECT_EQ(story.model(2)->feature(code)->current.get(), 42);
        // Each goes out twice; enough of them that the picture follows the hand.
        const auto requests = story.monitor(2).counters().setRequests - before;
        EXPECT_GE(requests, 10U);
        EXPECT_LE(requests, 50U);
    }
}

TEST_P(SliderStory, TheMonitorIsWhereTheHandIsSoonAfterItRests) {
    DeskStory story = at(test::usualDesk());
    story.drags(2, brightness, allTheWay());
    story.waits(300ms);
    EXPECT_EQ(story.monitor(2).value(brightness), 100);
}

TEST_P(SliderStory, TwoOfAMonitorTakeTurns) {
    DeskStory story = at(test::usualDesk());
    for (std::uint16_t step = 0; step < 50; ++step) {
        story.drags(2, brightness, {step});
        story.drags(2, volume, {static_cast<std::uint16_t>(50 - step)});
    }
    story.waits(1s);
    EXPECT_EQ(story.monitor(2).value(brightness), 49);
    EXPECT_EQ(story.monitor(2).value(volume), 1);
    EXPECT_EQ(story.monitor(2).value(contrast), 70);
}

TEST_P(SliderStory, OneMonitorHearsNothingOfAnothers) {
    DeskStory story = at(test::usualDesk());
    const auto before = story.monitor(3).counters();
    story.drags(2, brightness, allTheWay());
    story.waits(1s);
    EXPECT_EQ(story.monitor(3).counters().setRequests, before.setRequests);
    EXPECT_EQ(story.monitor(3).value(brightness), 50);
}

TEST_P(SliderStory, WhatWasSetLastStillArrivesWhenTheProgramIsQuitAtOnce) {
    DeskStory story = at(test::usualDesk());
    story.drags(2, brightness, allTheWay());
    story.quits();
    story.waits(1s);
    EXPECT_EQ(story.monitor(2).value(brightness), 100);
}

TEST_P(SliderStory, ADragGoesOnWhenTheCableIsBack) {
    DeskStory story = at(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder")}));
    story.drags(2, brightness, {10});
    story.waits(1s);
    story.computer().unplug(2);
    story.drags(2, brightness, {20});
    story.waits(5s);
    EXPECT_EQ(story.monitor(2).value(brightness), 10);
    story.computer().plug(2);
    story.waits(5s);
    story.drags(2, brightness, {30});
    story.waits(5s);
    EXPECT_EQ(story.monitor(2).value(brightness), 30);
}

}  // namespace
}  // namespace vantrel
