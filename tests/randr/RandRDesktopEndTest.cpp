#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <signal.h>
#include <string>

#include "ServerTest.h"

namespace vantrel::randr {
namespace {

class RandRDesktopEndTest : public ServerTest {
  protected:
    static void expectNothing(RandRDesktop& gone) {
        EXPECT_TRUE(gone.outputs().empty());
        EXPECT_FALSE(gone.table("screen"));
        EXPECT_FALSE(gone.setTable("screen", table(1)));
        EXPECT_FALSE(gone.canSwitch());
        EXPECT_FALSE(gone.arrangement("screen"));
        EXPECT_FALSE(gone.darken("screen"));
        EXPECT_FALSE(gone.light("screen", std::nullopt));
    }
};

// One test, since there is one server to end.
TEST_F(RandRDesktopEndTest, AServerThatEndsIsADesktopWithoutOutputs) {
    const std::string name = environment("VANTREL_MORTAL_DISPLAY");
    const auto told = RandRDesktop::open(name, descriptors, loop);
    // These have much to read when they learn of it, and write before they do.
    std::array<std::unique_ptr<RandRDesktop>, 20> asking;
    for (auto& desktop : asking) desktop = RandRDesktop::open(name, descriptors, loop);
    ASSERT_EQ(told->outputs().size(), 1U);
    int calls = 0;
    told->onChange([&] {
        ++calls;
        loop.quit();
    });
    const OtherClient other(name);
    for (std::uint8_t number = 0; number < 200; ++number) other.setProperty("screen", "EDID", {number});

    ASSERT_EQ(::kill(std::stoi(environment("VANTREL_MORTAL_SERVER")), SIGKILL), 0);
    for (const auto& desktop : asking) {
        // Whatever it says of the moment: in the end there is nothing.
        while (!desktop->outputs().empty()) {
        }
        expectNothing(*desktop);
    }
    run();
    while (!told->outputs().empty()) run();
    expectNothing(*told);
    // Told of it once, and nothing goes on.
    const int before = calls;
    loop.runFor(std::chrono::milliseconds(50));
    EXPECT_EQ(calls, before);
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST_F(RandRDesktopEndTest, WithoutAServerThereIsNone) {
    EXPECT_EQ(RandRDesktop::open("", descriptors, loop), nullptr);
    EXPECT_EQ(RandRDesktop::open(":4711", descriptors, loop), nullptr);
    EXPECT_EQ(RandRDesktop::open("nonsense", descriptors, loop), nullptr);
}

TEST_F(RandRDesktopEndTest, WithoutRandRThereIsNone) {
    EXPECT_EQ(RandRDesktop::open(environment("VANTREL_PLAIN_DISPLAY"), descriptors, loop), nullptr);
}

}  // namespace
}  // namespace vantrel::randr
