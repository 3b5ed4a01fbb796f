// Turning the computer's output to a monitor off and on again.
#include <algorithm>
#include <chrono>

#include "model/DisplayManager.h"
#include "model/VCPCodes.h"
#include "persistence/Store.h"
#include "platform/DisplayToggler.h"
#include "runtime/Sleep.h"
#include "text/Hex.h"

namespace vantrel::model {

using namespace std::chrono_literals;
using platform::LogLevel;
using platform::DisplayToggler::Output;
using text::Text;
namespace Store = persistence::Store;

namespace {

// The monitor begins to switch while it still has a picture from the computer.
constexpr auto switchHeadStart = 300ms;

Text onlyActiveDisplay() { return Text::translated("The Mac's only active display can't be turned off."); }

}  // namespace

runtime::Task<> DisplayManager::disableOutput(Display display, std::optional<Input> input) {
    if (displaysWithAPicture() < 2) {
        fail(onlyActiveDisplay());
        co_return;
    }
    if (!display->inputSettings().macInput()) {
        co_await learnMacInput(display);
        if (!mayStillTurnOff(*display)) co_return;
    }

    const std::optional<Input> target = input ? input : display->inputSettings().focusInput();
    const auto feature = display->feature(inputSource);
    if (target && feature) {
        display->set(*feature, *target);
        auto headStart = runtime::sleep(platform_.mainLoop, switchHeadStart);
        co_await headStart;
    }
    if (!mayStillTurnOff(*display)) co_return;
    log(LogLevel::standard, "Turning Mac output off for " + display->name() + " (id " +
                                std::to_string(display->id()) + "), switching to " +
                                (target ? "0x" + text::upperHex(*target) : "nothing"));
    if (!platform::DisplayToggler::setEnabled(platform_.displays, platform_.functions, display->id(),
                                              Output::off)) {
        fail(Text::translated("macOS refused to turn the output off for %@.", {display->name()}));
        log(LogLevel::error, "macOS refused to turn output off for " + display->name());
        co_return;
    }
    removeDisabled(display->id());
    std::vector<DisabledDisplay> all = disabled();
    all.push_back({display->id(), display->key(), display->name()});
    setDisabled(std::move(all));
    clearLastError();
    refresh();
}

// Asks the system, because the inventory is a moment old.
bool DisplayManager::mayStillTurnOff(const ExternalDisplay& display) {
    const std::vector<DisplayID> online = platform_.displays.onlineDisplays();
    const bool isOnline = std::ranges::find(online, display.id()) != online.end();
    // Another monitor answers to its identifier by now.
    if (isOnline && Store::displayKey(platform_.displays, display.id()) != display.key()) return false;

    const auto isAnother = [&display](DisplayID id) { return id != display.id(); };
    const bool isAnotherKnown =
        builtIn() || std::ranges::any_of(externals(), isAnother, [](const Display& d) { return d->id(); });
    if (isAnotherKnown && std::ranges::any_of(online, isAnother)) return true;
    fail(onlyActiveDisplay());
    return false;
}

// The monitor still shows this computer, so what it shows is the way back.
runtime::Task<> DisplayManager::learnMacInput(Display display) {
    co_await display->readInput();
    const auto feature = display->feature(inputSource);
    if (!feature || !feature->current.get()) co_return;
    const Input input = *feature->current.get();
    log(LogLevel::standard, display->name() + ": learned Mac input 0x" + text::upperHex(input));
    display->inputSettings().setMacInput(input);
}

void DisplayManager::enableOutput(const DisabledDisplay& entry) { tasks_.start(turnOutputOn(entry)); }

runtime::Task<> DisplayManager::turnOutputOn(DisabledDisplay entry) {
    const auto found = offline().find(entry.id);
    const Display display = found == offline().end() ? nullptr : found->second;
    if (display && display->inputSettings().macInput() && display->feature(inputSource)) {
        co_await returnToMac(display);
        co_return;
    }
    log(LogLevel::standard, "Turning Mac output back on for " + entry.name + " (id " +
                                std::to_string(entry.id) + "), no Mac input to switch to");
    enable(entry.id, entry.name);
}

bool DisplayManager::enable(DisplayID id, const std::string& name) {
    if (!platform::DisplayToggler::setEnabled(platform_.displays, platform_.functions, id, Output::on)) {
        fail(Text::translated("Couldn't turn %@ back on. If it was disconnected, plug the cable back in.",
                              {name}));
        log(LogLevel::error, "macOS refused to turn output back on for " + name);
        return false;
    }
    removeDisabled(id);
    clearLastError();
    scheduleRefresh();
    return true;
}

}  // namespace vantrel::model
