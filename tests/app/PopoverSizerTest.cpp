#include <chrono>
#include <gtest/gtest.h>

#include "app/PopoverSizer.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using Decision = PopoverSizer::Decision;

runtime::MonotonicTime at(std::chrono::milliseconds time) { return runtime::MonotonicTime(time); }

Decision ask(PopoverSizer& sizer, ui::Size size, std::chrono::milliseconds time = 0ms) {
    sizer.request(size);
    return sizer.apply(at(time));
}

// So many sizes, all different, one after the other.
int resizesOf(PopoverSizer& sizer, int requests, std::chrono::milliseconds begin,
              std::chrono::milliseconds pause) {
    int resizes = 0;
    for (int request = 0; request < requests; ++request) {
        const ui::Size size{340, request % 2 == 0 ? 400.0 : 500.0};
        if (ask(sizer, size, begin + request * pause) == Decision::resize) ++resizes;
    }
    return resizes;
}

TEST(PopoverSizer, TakesTheLastOfTenRequestsOnce) {
    PopoverSizer sizer({320, 500});
    int asked = 0;
    for (int request = 1; request <= 10; ++request)
        asked += sizer.request({320, 500.0 + 10 * request}) ? 1 : 0;
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(sizer.apply(at(0ms)), Decision::resize);
    EXPECT_EQ(sizer.requestedSize(), (ui::Size{320, 600}));
    EXPECT_EQ(sizer.apply(at(0ms)), Decision::leave);
}

TEST(PopoverSizer, AsksAgainAfterItHasApplied) {
    PopoverSizer sizer({320, 500});
    EXPECT_TRUE(sizer.request({320, 600}));
    sizer.apply(at(0ms));
    EXPECT_TRUE(sizer.request({320, 700}));
}

TEST(PopoverSizer, RoundsUpToWholePoints) {
    PopoverSizer sizer({0, 0});
    EXPECT_EQ(ask(sizer, {300.2, 400.1}), Decision::resize);
    EXPECT_EQ(sizer.requestedSize(), (ui::Size{301, 401}));
    EXPECT_EQ(ask(sizer, {301, 401}), Decision::leave);
    EXPECT_EQ(ask(sizer, {300.7, 400.9}), Decision::leave);
}

TEST(PopoverSizer, IgnoresSmallShrinks) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(ask(sizer, {320, 497}), Decision::leave);
    EXPECT_EQ(ask(sizer, {320, 496}), Decision::leave);
    EXPECT_EQ(ask(sizer, {320, 495}), Decision::resize);
}

TEST(PopoverSizer, FollowsASmallShrinkOfTheWidth) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(ask(sizer, {321, 499}), Decision::resize);
    EXPECT_EQ(ask(sizer, {320, 499}), Decision::resize);
}

TEST(PopoverSizer, FollowsAnyGrowth) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(ask(sizer, {320, 501}), Decision::resize);
    EXPECT_EQ(ask(sizer, {320, 560}), Decision::resize);
}

TEST(PopoverSizer, HoldsTheSizeAtThe31stResizeWithinASecond) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(resizesOf(sizer, 30, 0ms, 10ms), 30);
    EXPECT_EQ(ask(sizer, {340, 900}, 999ms), Decision::hold);
    EXPECT_EQ(sizer.askedSize(), (ui::Size{340, 900}));
    EXPECT_EQ(sizer.requestedSize(), (ui::Size{340, 500}));
}

TEST(PopoverSizer, SaysOnceThatItHolds) {
    PopoverSizer sizer({320, 500});
    resizesOf(sizer, 30, 0ms, 1ms);
    EXPECT_EQ(ask(sizer, {340, 900}, 40ms), Decision::hold);
    EXPECT_EQ(ask(sizer, {340, 901}, 50ms), Decision::leave);
    EXPECT_EQ(ask(sizer, {340, 902}, 1h), Decision::leave);
}

TEST(PopoverSizer, ForgetsResizesOfASecondAgo) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(resizesOf(sizer, 30, 0ms, 10ms), 30);
    // The first of them is exactly a second old.
    EXPECT_EQ(ask(sizer, {340, 900}, 1000ms), Decision::resize);
}

TEST(PopoverSizer, NeverHoldsWhatGrowsSlowly) {
    PopoverSizer sizer({320, 500});
    EXPECT_EQ(resizesOf(sizer, 1000, 0ms, 34ms), 1000);
}

TEST(PopoverSizer, ResizesAgainAfterClosing) {
    PopoverSizer sizer({320, 500});
    resizesOf(sizer, 30, 0ms, 1ms);
    ask(sizer, {340, 900}, 40ms);
    sizer.popoverDidClose();
    EXPECT_EQ(ask(sizer, {340, 900}, 50ms), Decision::resize);
    EXPECT_EQ(resizesOf(sizer, 29, 51ms, 1ms), 29);
}

TEST(PopoverSizer, KeepsTheSizeWhenThePopoverCloses) {
    PopoverSizer sizer({320, 500});
    ask(sizer, {320, 600});
    sizer.popoverDidClose();
    EXPECT_EQ(sizer.requestedSize(), (ui::Size{320, 600}));
    EXPECT_EQ(ask(sizer, {320, 600}), Decision::leave);
}

TEST(PopoverSizer, CountsNoRequestThatItLeaves) {
    PopoverSizer sizer({320, 500});
    for (int request = 0; request < 100; ++request) EXPECT_EQ(ask(sizer, {320, 498}), Decision::leave);
    EXPECT_EQ(ask(sizer, {320, 600}), Decision::resize);
}

}  // namespace
}  // namespace vantrel::app
