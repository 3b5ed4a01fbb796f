// The whole program below its views, from the displays' models down to the kernel's calls.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/KernelComputer.h"
#include "linux/kernel/WithoutSuperuser.h"
#include "model/DisplayManager.h"
#include "runtime/RealScheduler.h"
#include "support/TestDesks.h"
#include "support/VirtualLoop.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using model::DisplayManager;
using LoadState = model::ExternalDisplay::LoadState;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::uint8_t brightness = 0x10;
constexpr std::uint8_t inputSource = 0x60;

// A computer with the program on it.
class Program {
  public:
    Program(const simulated::Desk& desk, runtime::Scheduler& scheduler, runtime::MainLoop& loop,
            KernelComputer::BusTime busTime)
        : computer(desk, scheduler, loop, busTime) {}

    void start() { manager = std::make_unique<DisplayManager>(platform); }
    DisplayManager::Display display(const std::string& name) const {
        for (const auto& external : manager->externals()) {
            if (external->name() == name) return external;
        }
        return nullptr;
    }
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& external : manager->externals()) names.push_back(external->name());
        return names;
    }
    bool isReady(const std::string& name) const {
        const auto found = display(name);
        return found && found->loadState() == LoadState::ready;
    }
    // What a slider does.
    void slide(const std::string& name, std::uint16_t value) const {
        const auto moved = display(name);
        moved->set(*moved->feature(brightness), value);
    }

    KernelComputer computer;
    platform::Platform platform = computer.linux->platform();
    std::unique_ptr<DisplayManager> manager;
};

class KernelStory : public testing::Test {
  protected:
    KernelStory() { test::withoutSuperuser(); }

    void starts(const simulated::Desk& desk = usualDesk()) {
        program.emplace(desk, virtualLoop.time, virtualLoop.loop, KernelComputer::BusTime::addsUp);
        program->start();
        program->computer.runFor(10s);
    }
    test::EmulatedKernel& kernel() { return program->computer.kernel; }
    simulated::SimulatedMonitor& monitor(platform::DisplayID id) { return kernel().monitor(id); }
    void waits(runtime::MonotonicClock::duration duration) { program->computer.runFor(duration); }

    // With a monitor on a connector of each kind.
    static simulated::Desk usualDesk() {
        return test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder"), test::monitorPlan(3, "Birch"),
                             test::monitorPlan(4, "Cedar")});
    }

    test::VirtualLoop virtualLoop;
    std::optional<Program> program;
};

TEST_F(KernelStory, TheProgramFindsTheMonitorsAndTheirControls) {
    starts();
    EXPECT_THAT(program->names(), testing::UnorderedElementsAre("Alder", "Birch", "Cedar"));
    for (const char* name : {"Alder", "Birch", "Cedar"}) {
        ASSERT_TRUE(program->isReady(name)) << name;
        EXPECT_EQ(program->display(name)->feature(brightness)->current.get(), 50) << name;
    }
    EXPECT_TRUE(program->manager->obstacles().empty());
    EXPECT_EQ(kernel().strayWrites(), 0U);
}

TEST_F(KernelStory, ASliderWritesToItsMonitorAndToNoOther) {
    starts();
    for (const std::uint16_t value : std::vector<std::uint16_t>{60, 70, 80}) program->slide("Cedar", value);
    waits(1s);
    EXPECT_EQ(monitor(4).value(brightness), 80);
    EXPECT_EQ(monitor(2).value(brightness), 50);
    EXPECT_EQ(monitor(3).value(brightness), 50);
    EXPECT_EQ(kernel().strayWrites(), 0U);
}

TEST_F(KernelStory, ThePanelsSliderSetsTheBacklight) {
    starts();
    ASSERT_NE(program->manager->builtIn(), nullptr);
    program->manager->builtIn()->setBrightness(0.25F);
    EXPECT_EQ(kernel().backlight(), test::EmulatedKernel::maximumBacklight / 4);
    kernel().setBacklight(test::EmulatedKernel::maximumBacklight / 2);
    program->manager->builtIn()->refresh();
    EXPECT_EQ(program->manager->builtIn()->brightness(), 0.5F);
}

TEST_F(KernelStory, AMonitorComesBackToThisComputersInputAndIsVerified) {
    starts();
    monitor(2).pressInputButton(test::otherInput);
    waits(1s);
    ASSERT_EQ(monitor(2).shownInput(), test::otherInput);
    const auto alder = program->display("Alder");
    program->manager->start(program->manager->returnToMac(alder));
    waits(100ms);
    ASSERT_TRUE(alder->isReturningToMac());
    const std::uint64_t before = monitor(2).counters().getRequests;
    EXPECT_TRUE(program->computer.runUntil([&] { return !alder->isReturningToMac(); }));
    EXPECT_EQ(monitor(2).shownInput(), test::computersInput);
    EXPECT_EQ(alder->feature(inputSource)->current.get(), test::computersInput);
    EXPECT_EQ(program->manager->lastError(), std::nullopt);
    // Three readings at the least say so, and each is asked for.
    EXPECT_GE(monitor(2).counters().getRequests - before, 3U);
}

TEST_F(KernelStory, AMonitorThatLeavesItsConnectorOnTheWayComesBackToo) {
    simulated::DisplayPlan plan = test::monitorPlan(2, "Alder");
    simulated::InputSwitch& manner = plan.monitor->personality.inputSwitch;
    manner.time = 4s;
    manner.silent = true;
    manner.pulse = 1800ms;
    manner.pulseAfter = 700ms;
    starts(test::deskOf({test::panelPlan(), plan}));
    monitor(2).pressInputButton(test::otherInput);
    waits(10s);
    const auto alder = program->display("Alder");
    ASSERT_NE(alder, nullptr);
    program->manager->start(program->manager->returnToMac(alder));
    // The kernel says so, and nobody else.
    EXPECT_TRUE(program->computer.runUntil([&] { return program->names().empty(); }));
    EXPECT_TRUE(program->computer.runUntil([&] { return !alder->isReturningToMac(); }));
    EXPECT_EQ(program->display("Alder"), alder);
    EXPECT_EQ(monitor(2).shownInput(), test::computersInput);
    EXPECT_EQ(program->manager->lastError(), std::nullopt);
}

// However its connector leads to it.
class KernelStoryOfABus : public KernelStory, public testing::WithParamInterface<platform::DisplayID> {};
INSTANTIATE_TEST_SUITE_P(Wirings, KernelStoryOfABus, testing::Values(2U, 3U, 4U));

TEST_P(KernelStoryOfABus, ThatVanishesAndComesBackUnderAnotherNumber) {
    const platform::DisplayID id = GetParam();
    starts();
    const std::string name = usualDesk().displays.at(id - 1).name;
    const auto before = program->display(name);
    kernel().removeBus(id);
    waits(5s);
    ASSERT_EQ(program->display(name), before);
    program->slide(name, 60);
    waits(5s);
    EXPECT_EQ(monitor(id).value(brightness), 50);

    kernel().restoreBus(id, 12);
    waits(5s);
    program->slide(name, 70);
    waits(5s);
    EXPECT_EQ(monitor(id).value(brightness), 70);
    EXPECT_EQ(kernel().strayWrites(), 0U);
}

TEST_F(KernelStory, AnotherBusThatGetsTheNumberGetsNoneOfItsMessages) {
    starts();
    const int birchesNumber = kernel().busNumber(3).value();
    const int aldersNumber = kernel().busNumber(2).value();
    kernel().removeBus(2);
    kernel().removeBus(3);
    kernel().restoreBus(2, birchesNumber);
    kernel().restoreBus(3, aldersNumber);
    // Before the program has heard of it.
    program->slide("Alder", 60);
    program->slide("Birch", 70);
    waits(10s);
    EXPECT_THAT((std::vector{monitor(2).value(brightness), monitor(3).value(brightness)}),
                ElementsAre(60, 70));
}

TEST_F(KernelStory, AMonitorThatIsPluggedInAgainKeepsItsModel) {
    starts();
    const auto alder = program->display("Alder");
    program->computer.unplug(2);
    waits(5s);
    EXPECT_THAT(program->names(), testing::UnorderedElementsAre("Birch", "Cedar"));
    program->computer.plug(2);
    waits(5s);
    EXPECT_EQ(program->display("Alder"), alder);
    program->slide("Alder", 60);
    waits(1s);
    EXPECT_EQ(monitor(2).value(brightness), 60);
}

TEST_F(KernelStory, TheUserIsToldOfABusThatMayNotBeUsed) {
    program.emplace(usualDesk(), virtualLoop.time, virtualLoop.loop, KernelComputer::BusTime::addsUp);
    kernel().denyNode(2);
    program->start();
    waits(10s);
    EXPECT_FALSE(program->isReady("Alder"));
    EXPECT_TRUE(program->isReady("Birch"));
    EXPECT_THAT(program->manager->obstacles(), ElementsAre(HasSubstr("(" + kernel().node(2) + ")")));
}

// In real time, since one transfer has to be under way for as long as another monitor
// takes to be read; nothing depends on how long that is.
TEST(KernelStoryInRealTime, AMonitorAnswersWhileAnothersBusHangs) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    const simulated::Desk desk = test::deskOf({test::monitorPlan(2, "Alder"), test::monitorPlan(3, "Birch")});
    Program program(desk, scheduler, loop, KernelComputer::BusTime::isOwed);
    auto& kernel = program.computer.kernel;
    int stuck = 0;
    kernel.hang(2, [&] { ++stuck; });
    program.start();
    EXPECT_TRUE(program.computer.runUntil([&] { return program.isReady("Birch"); }));
    EXPECT_EQ(program.display("Birch")->feature(brightness)->current.get(), 50);
    // One, and no other was even tried behind it.
    EXPECT_EQ(stuck, 1);
    EXPECT_EQ(kernel.monitor(2).counters().writes, 0U);
    EXPECT_FALSE(program.isReady("Alder"));

    kernel.resume(2);
    EXPECT_TRUE(program.computer.runUntil([&] {
        const auto state = program.display("Alder")->loadState();
        return state == LoadState::ready || state == LoadState::unavailable;
    }));
    program.manager->loadAll();
    EXPECT_TRUE(program.computer.runUntil([&] { return program.isReady("Alder"); }));
    program.manager.reset();
}

}  // namespace
}  // namespace vantrel::linux
