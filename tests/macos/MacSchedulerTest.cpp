#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "macos/fake/Threads.h"
#include "platform/macos/MacScheduler.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/SerialQueue.h"

namespace vantrel::macos {
namespace {

using namespace std::chrono_literals;
using runtime::QualityOfService;

// Remembers what it was asked for.
class AskedScheduler : public simulated::VirtualTime {
  public:
    void startThread(std::string name, QualityOfService quality, std::function<void()> body) override {
        names.push_back(name);
        VirtualTime::startThread(std::move(name), quality, std::move(body));
    }

    std::vector<std::string> names;
};

class MacSchedulerTest : public testing::Test {
  protected:
    fake::ThreadTraits traitsOf(std::string name) {
        fake::ThreadTraits traits;
        scheduler.startThread(std::move(name), QualityOfService::userInitiated,
                              [&traits] { traits = fake::threadTraits(); });
        scheduler.finishThreads();
        return traits;
    }

    AskedScheduler time;
    MacScheduler scheduler{time};
};

TEST_F(MacSchedulerTest, GivesAThreadItsNameAndItsQuality) {
    const fake::ThreadTraits traits = traitsOf("ddc Alder");
    EXPECT_EQ(traits.name, "ddc Alder");
    EXPECT_EQ(traits.quality, QOS_CLASS_USER_INITIATED);
    EXPECT_EQ(traits.priority, 0);
}

TEST_F(MacSchedulerTest, ShortensANameThatTheSystemWouldRefuse) {
    EXPECT_EQ(traitsOf(std::string(100, 'x')).name, std::string(63, 'x'));
}

TEST_F(MacSchedulerTest, GivesAServantItsNameAndItsQualityToo) {
    const auto gate = scheduler.makeGate();
    fake::ThreadTraits traits;
    scheduler.startServant(
        "bus 4", QualityOfService::userInitiated,
        [&] {
            gate->wait(std::nullopt);
            traits = fake::threadTraits();
        },
        [&] { gate->open(); });
    scheduler.finishThreads();
    EXPECT_EQ(traits.name, "bus 4");
    EXPECT_EQ(traits.quality, QOS_CLASS_USER_INITIATED);
}

TEST_F(MacSchedulerTest, AsksTheOneInsideForTheWholeName) {
    const std::string name(100, 'x');
    traitsOf(name);
    EXPECT_EQ(time.names, std::vector{name});
}

TEST_F(MacSchedulerTest, HasTheTimesTheGatesAndTheSleepOfTheOneInside) {
    const auto wall = scheduler.wallNow();
    scheduler.sleepFor(3s);
    EXPECT_EQ(scheduler.now(), time.now());
    EXPECT_EQ(scheduler.wallNow() - wall, 3s);
    const auto gate = scheduler.makeGate();
    gate->open();
    EXPECT_EQ(gate->wait(std::nullopt), runtime::Wake::opened);
}

}  // namespace
}  // namespace vantrel::macos
