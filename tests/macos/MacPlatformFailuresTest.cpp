#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <sstream>

#include "ddc/Probe.h"
#include "macos/MacBench.h"
#include "macos/fake/Objects.h"
#include "model/DisplayManager.h"

namespace vantrel::macos {
namespace {

using namespace std::chrono_literals;

// A day with the program: the probe, the monitors loaded, a picture dimmed, an
// output off and on, a cable out and in, sleep.
class Day {
  public:
    Day() : bench_(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder")})) {}

    fake::Calls& calls() { return bench_.fake.calls(); }
    simulated::SimulatedPlatform& computer() { return bench_.computer; }

    void live() {
        std::ostringstream output;
        ddc::Probe::run(bench_.platform, output);
        bench_.platform.localizer.shown(text::Text::translated("Quit"));
        manager_.emplace(bench_.platform);
        openThePopover();
        dim();
        turnOffAndOn();
        computer().world().unplug(2);
        waits(5s);
        computer().world().plug(2);
        waits(5s);
        computer().world().sleep();
        computer().world().wake();
        waits(5s);
        bench_.platform.displays.restoreColorSyncSettings();
        bench_.platform.defaults.remove("something");
    }
    void openThePopover() {
        manager_->refresh();
        manager_->loadAll();
        waits(10s);
    }

    // What the program shows.
    std::size_t shown() const { return manager_->externals().size(); }
    bool isLoaded() const { return shown() == 1 && manager_->externals()[0]->feature(0x10) != nullptr; }

  private:
    void waits(runtime::MonotonicClock::duration duration) { bench_.loop.runFor(duration); }

    void dim() {
        if (manager_->builtIn()) manager_->builtIn()->setBrightness(0.7F);
        for (const auto& external : manager_->externals()) {
            external->setControlMode(model::ControlMode::software);
            external->dimmer().setBrightness(0.5);
            external->setControlMode(model::ControlMode::automatic);
        }
    }

    void turnOffAndOn() {
        if (manager_->externals().empty()) return;
        manager_->start(manager_->disableOutput(manager_->externals()[0], std::nullopt));
        waits(10s);
        // Whoever sees that it failed tries again.
        for (int attempt = 0; attempt < 2; ++attempt) {
            for (const auto& entry : std::vector(manager_->disabled())) manager_->enableOutput(entry);
            waits(20s);
        }
    }

    MacBench bench_;
    std::optional<model::DisplayManager> manager_;
};

TEST(MacPlatformFailures, TheDayCallsEveryFunctionThatCanFail) {
    Day day;
    day.live();
    const auto made = day.calls().made();
    const std::set<std::string> functions(made.begin(), made.end());
    EXPECT_THAT(
        functions,
        testing::UnorderedElementsAre(
            "CFBundleCopyLocalizedString", "CFBundleGetMainBundle", "CFDataCreate", "CFDictionaryCreate",
            "CFNumberCreate", "CFNumberGetValue", "CFPreferencesCopyAppValue", "CFPreferencesSetAppValue",
            "CFStringCreateWithBytes", "CGBeginDisplayConfiguration", "CGCompleteDisplayConfiguration",
            "CGDisplayGammaTableCapacity", "CGDisplayIsBuiltin", "CGDisplayModelNumber",
            "CGDisplayRegisterReconfigurationCallback", "CGDisplayRestoreColorSyncSettings",
            "CGDisplaySerialNumber", "CGDisplayVendorNumber", "CGGetDisplayTransferByTable",
            "CGGetOnlineDisplayList", "CGSConfigureDisplayEnabled", "CGSetDisplayTransferByTable",
            "DisplayServicesGetBrightness", "DisplayServicesSetBrightness", "IOAVServiceCreateWithService",
            "IOAVServiceReadI2C", "IOAVServiceWriteI2C", "IOIteratorNext", "IORegistryCreateIterator",
            "IORegistryEntryCreateCFProperty", "IORegistryEntryGetName", "dlopen", "dlsym"));
}

// Libraries are looked for once: what was not found then stays absent.
bool isRemembered(const std::string& function) { return function == "dlopen" || function == "dlsym"; }

TEST(MacPlatformFailures, SurvivesEveryCallThatFailsOnce) {
    std::vector<std::string> calls;
    {
        Day day;
        day.live();
        calls = day.calls().made();
    }
    ASSERT_GT(calls.size(), 100);
    RecordProperty("calls", static_cast<int>(calls.size()));
    for (std::size_t number = 0; number < calls.size(); ++number) {
        SCOPED_TRACE(calls[number] + ", call " + std::to_string(number));
        {
            Day day;
            day.calls().failCall(number);
            day.live();
            EXPECT_EQ(day.computer().openConfigurations(), 0);
            // However it went, all is well again at the next look.
            day.openThePopover();
            EXPECT_EQ(day.shown(), 1);
            EXPECT_TRUE(day.isLoaded() || isRemembered(calls[number]));
        }
        ASSERT_EQ(fake::liveObjects(), 0);
        ASSERT_EQ(fake::liveRegistryObjects(), 0);
        fake::bury();
    }
}

}  // namespace
}  // namespace vantrel::macos
