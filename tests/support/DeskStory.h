// What a person does at a desk, and what they see: the cards, their spinners, the
// error text, and the monitors themselves. Displays go by the desk's numbers.
#pragma once

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/DisplayManager.h"
#include "support/StoryComputer.h"
#include "support/TestDesks.h"

namespace vantrel::test {

class DeskStory {
  public:
    using DisplayID = platform::DisplayID;
    using Duration = runtime::MonotonicClock::duration;

    explicit DeskStory(std::unique_ptr<StoryComputer> computer) : computer_(std::move(computer)) { start(); }
    DeskStory(const DeskStory&) = delete;
    DeskStory& operator=(const DeskStory&) = delete;

    // What the person does.
    void picks(DisplayID display, std::uint16_t input) {
        manager().start(manager().selectInput(input, model(display)));
    }
    void turnsOff(DisplayID display) {
        manager().start(manager().disableOutput(model(display), std::nullopt));
    }
    // On the card of a monitor that is off; without one the test fails.
    void turnsOn(DisplayID display) {
        for (const auto& entry : manager().disabled()) {
            if (entry.id == id(display)) return manager().enableOutput(entry);
        }
        ADD_FAILURE() << "there is no card to turn " << display << " on with";
    }
    void opensThePopover() {
        manager().refresh();
        manager().loadAll();
    }
    void asksAgainForControls(DisplayID display) {
        manager().start(model(display)->load(model::ExternalDisplay::Capabilities::fetched));
    }
    // A slider, over the control of this code, every ten milliseconds a step; the last of the
    // values is where it is let go.
    void drags(DisplayID display, std::uint8_t code, const std::vector<std::uint16_t>& values) {
        for (const std::uint16_t value : values) {
            model(display)->set(*model(display)->feature(code), value);
            waits(std::chrono::milliseconds(10));
        }
    }
    void quits() { manager_.reset(); }
    void quitsAndStartsAgain() {
        quits();
        computer().startAgain();
        start();
    }
    void waits(Duration duration) { loop().runFor(duration); }
    // Until the spinner has gone; ten minutes at the most. Gives how long it took.
    Duration waitsForTheSpinnerToEnd(DisplayID display) {
        const auto start = now();
        const auto isSpinning = [this, display] { return model(display)->isReturningToMac(); };
        while (isSpinning() && now() < start + std::chrono::minutes(10)) {
            waits(std::chrono::milliseconds(10));
        }
        EXPECT_FALSE(isSpinning());
        return now() - start;
    }

    // What they see: "on", "off", "none", or "on, returning" and "off, returning".
    std::string card(DisplayID display) const {
        std::string text = "none";
        for (const auto& external : manager().externals()) {
            if (external->id() == id(display)) text = "on";
        }
        if (manager().offline().contains(id(display))) text = "off";
        const auto shown = model(display);
        const bool isSpinning = text != "none" && shown && shown->isReturningToMac();
        return isSpinning ? text + ", returning" : text;
    }
    // Empty without one.
    std::string errorText() const { return manager().lastError().value_or(""); }
    std::uint16_t shown(DisplayID display) { return monitor(display).shownInput().value(); }
    bool hasPicture(DisplayID display) { return computer().hasPicture(display); }

    // What is behind it.
    StoryComputer& computer() const { return *computer_; }
    DisplayID id(DisplayID display) const { return computer().id(display); }
    simulated::SimulatedMonitor& monitor(DisplayID display) { return computer().monitor(display); }
    model::DisplayManager& manager() const { return *manager_; }
    std::shared_ptr<model::ExternalDisplay> model(DisplayID display) const {
        return manager().known(id(display));
    }
    runtime::MainLoop& loop() const { return computer().platform().mainLoop; }
    runtime::MonotonicTime now() const { return computer().time().now(); }
    // How many lines of the log say exactly this.
    std::ptrdiff_t logged(std::string_view text) const {
        return std::ranges::count(computer().log().lines(), text, &LogLine::text);
    }
    std::vector<persistence::DisabledDisplay> stored() {
        return persistence::Store::disabledDisplays(computer().platform().defaults);
    }

  private:
    // As the program does it, until every monitor is loaded.
    void start() {
        manager_ = std::make_unique<model::DisplayManager>(computer().platform());
        waits(std::chrono::seconds(10));
    }

    std::unique_ptr<StoryComputer> computer_;
    std::unique_ptr<model::DisplayManager> manager_;
};

// Stories that are the same on every platform.
class DeskStoryTest : public testing::TestWithParam<MakeStoryComputer> {
  protected:
    static DeskStory at(simulated::Desk desk) { return DeskStory(GetParam()(std::move(desk))); }
};

}  // namespace vantrel::test
