// Switching a monitor's input, and bringing it back to this computer for certain.
#include <chrono>

#include "model/DisplayManager.h"
#include "model/VCPCodes.h"
#include "runtime/Sleep.h"
#include "text/Hex.h"

namespace vantrel::model {

using namespace std::chrono_literals;
using platform::LogLevel;
using text::Text;

namespace {

constexpr int returnAttempts = 4;
// From the output back on until the monitor is asked to switch.
constexpr auto outputSettleTime = 1500ms;

// A monitor that switches may report the new input and fall back to the old one:
// only so many equal readings in a row, a moment apart, count.
constexpr int settledReadings = 3;
constexpr auto readingPause = 1s;
constexpr auto waitLimit = 20s;
// A monitor that dropped off the bus needs longer,
constexpr auto pulseLimit = 28s;
// and one that reported the right input last may just be confirming it.
constexpr auto graceLimit = pulseLimit + 10s;

}  // namespace

runtime::Task<> DisplayManager::selectInput(Input input, Display display) {
    if (display->inputSettings().macInput() == input) {
        co_await returnToMac(display);
        co_return;
    }
    display->beginInputRequest();
    display->setReturningToMac(false);
    const auto feature = display->feature(inputSource);
    if (!feature) co_return;
    const bool canGoDark = display->isOutputEnabled() && display->inputSettings().macInput() &&
                           platform_.functions.configureEnabled() != nullptr && displaysWithAPicture() >= 2;
    if (canGoDark) {
        co_await disableOutput(display, input);
        co_return;
    }
    display->set(*feature, input);
}

runtime::Task<> DisplayManager::returnToMac(Display display) {
    if (display->isReturningToMac()) co_return;
    const std::optional<Input> mac = display->inputSettings().macInput();
    if (!mac || !display->feature(inputSource)) co_return;
    const int request = display->beginInputRequest();
    const std::function<bool()> isCurrent = [display, request] { return display->inputRequest() == request; };
    display->setReturningToMac(true);

    if (isDisabled(display->id())) {
        log(LogLevel::standard, "Turning Mac output back on for " + display->name() + " (id " +
                                    std::to_string(display->id()) + ")");
        if (!enable(display->id(), display->name())) {
            if (isCurrent()) display->setReturningToMac(false);
            co_return;
        }
        auto settling = runtime::sleep(platform_.mainLoop, outputSettleTime);
        co_await settling;
    }

    for (int attempt = 1; attempt <= returnAttempts; ++attempt) {
        if (!isCurrent()) {
            log(LogLevel::standard, display->name() + ": return to the Mac replaced by another input");
            co_return;
        }
        log(LogLevel::standard, display->name() + ": switching to Mac input 0x" + text::upperHex(*mac) +
                                    ", attempt " + std::to_string(attempt));
        if (const auto feature = display->feature(inputSource)) display->set(*feature, *mac);
        const bool hasSettled = co_await waitForInput(*mac, display, isCurrent);
        // The error text and the spinner belong to the newer request now.
        if (!isCurrent()) continue;
        if (hasSettled) {
            log(LogLevel::standard, display->name() + ": monitor settled on the Mac input");
            clearLastError();
            display->setReturningToMac(false);
            co_return;
        }
        log(LogLevel::standard,
            display->name() + ": monitor did not take the Mac input, attempt " + std::to_string(attempt));
    }
    if (!isCurrent()) co_return;
    fail(Text::translated("%@ did not return to the Mac's input. Try again or use the monitor's buttons.",
                          {display->name()}));
    display->setReturningToMac(false);
}

runtime::Task<bool> DisplayManager::waitForInput(Input input, Display display,
                                                 std::function<bool()> isCurrent) {
    const runtime::WallTime start = platform_.scheduler.wallNow();
    std::optional<Input> last;
    int streak = 0;
    while (isCurrent()) {
        const auto pulse = hotPlugPulses_.find(display->id());
        const bool pulsed = pulse != hotPlugPulses_.end() && pulse->second > start;
        const runtime::WallTime now = platform_.scheduler.wallNow();
        const bool inTime = now < start + (pulsed ? runtime::WallTime::duration(pulseLimit) : waitLimit);
        const bool inGrace = last == input && now < start + graceLimit;
        if (!inTime && !inGrace) co_return false;

        const std::optional<Input> reading = co_await display->readInput();
        if (reading) {
            streak = *reading == input ? streak + 1 : 0;
            last = reading;
            if (streak >= settledReadings) co_return true;
        }
        auto pause = runtime::sleep(platform_.mainLoop, readingPause);
        co_await pause;
    }
    co_return false;
}

}  // namespace vantrel::model
