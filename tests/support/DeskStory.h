// What a person does at a desk, and what they see: the cards, their spinners, the
// error text, and the monitors themselves.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "support/ManagerRig.h"

namespace vantrel::test {

class DeskStory {
  public:
    using DisplayID = platform::DisplayID;
    using Duration = ManagerRig::Duration;

    explicit DeskStory(simulated::Desk desk) : rig(std::move(desk)) { rig.startAndLoad(); }

    // What the person does.
    void picks(DisplayID id, std::uint16_t input) {
        rig.manager->start(rig.manager->selectInput(input, rig.display(id)));
    }
    void turnsOff(DisplayID id) {
        rig.manager->start(rig.manager->disableOutput(rig.display(id), std::nullopt));
    }
    // On the card of a monitor that is off; without one the test fails.
    void turnsOn(DisplayID id) {
        for (const auto& entry : rig.manager->disabled()) {
            if (entry.id == id) return rig.manager->enableOutput(entry);
        }
        ADD_FAILURE() << "there is no card to turn " << id << " on with";
    }
    void opensThePopover() {
        rig.manager->refresh();
        rig.manager->loadAll();
    }
    void asksAgainForControls(DisplayID id) {
        rig.manager->start(rig.display(id)->load(model::ExternalDisplay::Capabilities::fetched));
    }
    void quitsAndStartsAgain() {
        rig.restart();
        waits(std::chrono::seconds(10));
    }
    void waits(Duration duration) { rig.runFor(duration); }
    // Until the spinner has gone; ten minutes at the most. Gives how long it took.
    Duration waitsForTheSpinnerToEnd(DisplayID id) {
        const auto start = rig.now();
        const auto isSpinning = [this, id] { return rig.display(id)->isReturningToMac(); };
        while (isSpinning() && rig.now() < start + std::chrono::minutes(10)) {
            waits(std::chrono::milliseconds(10));
        }
        EXPECT_FALSE(isSpinning());
        return rig.now() - start;
    }

    // What they see: "on", "off", "none", or "on, returning" and "off, returning".
    std::string card(DisplayID id) const {
        std::string text = "none";
        for (const auto& external : rig.manager->externals()) {
            if (external->id() == id) text = "on";
        }
        if (rig.manager->offline().contains(id)) text = "off";
        const auto model = rig.display(id);
        const bool isSpinning = text != "none" && model && model->isReturningToMac();
        return isSpinning ? text + ", returning" : text;
    }
    // Empty without one.
    std::string errorText() const { return rig.manager->lastError().value_or(""); }
    std::uint16_t shown(DisplayID id) { return rig.monitor(id).shownInput().value(); }
    bool hasPicture(DisplayID id) { return rig.world().isOnline(id); }

    ManagerRig rig;
};

}  // namespace vantrel::test
