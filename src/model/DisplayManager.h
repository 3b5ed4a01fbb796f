// Knows every display the computer has: the built-in panel, the external monitors
// that are online, and those whose output the user turned off. Rebuilds this
// inventory when the displays are reconfigured and when the computer wakes, and
// keeps one model per monitor across rebuilds.
//
// Threads: main thread. There is one, made by the application on first use; it
// listens to the platform until it is destroyed.
// Errors: what a user should know is in lastError, one text at a time.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/BuiltInDisplay.h"
#include "model/ExternalDisplay.h"
#include "persistence/DisabledDisplay.h"
#include "platform/Platform.h"
#include "runtime/Observable.h"
#include "runtime/TaskScope.h"

namespace vantrel::model {

class DisplayManager {
  public:
    using DisplayID = platform::DisplayID;
    using DisabledDisplay = persistence::DisabledDisplay;
    using Display = std::shared_ptr<ExternalDisplay>;
    using Input = ExternalDisplay::Input;

    // The platform must outlive the manager.
    explicit DisplayManager(platform::Platform& platform);
    DisplayManager(const DisplayManager&) = delete;
    DisplayManager& operator=(const DisplayManager&) = delete;

    // Null without one.
    const std::shared_ptr<BuiltInDisplay>& builtIn() const { return builtIn_.get(); }
    // In the system's order.
    const std::vector<Display>& externals() const { return externals_.get(); }
    // The monitors of `disabled`, by the identifier noted there.
    const std::map<DisplayID, Display>& offline() const { return offline_.get(); }
    // Monitors whose output this program turned off; no identifier twice.
    const std::vector<DisabledDisplay>& disabled() const { return disabled_.get(); }
    const std::optional<std::string>& lastError() const { return lastError_.get(); }
    void clearLastError() { lastError_.set(std::nullopt); }
    // What is in the way of monitors on this computer, and the way out: each a text of its
    // own. One that was dismissed doesn't come back.
    const std::vector<std::string>& obstacles() const { return obstacles_.get(); }
    void dismissObstacle(const std::string& obstacle);

    // Rebuilds the inventory at once.
    void refresh();
    // Rebuilds it when the displays have been quiet for a moment.
    void scheduleRefresh();
    // Takes a monitor off the list of those turned off; the next refresh drops it.
    void forget(const DisabledDisplay& entry);
    // Loads what every external monitor can do, or refreshes its values.
    void loadAll();

    // Runs one of the operations below for as long as the manager lives.
    runtime::TaskHandle start(runtime::Task<> operation) { return tasks_.start(std::move(operation)); }

    // The user picked an input.
    runtime::Task<> selectInput(Input input, Display display);
    // Brings the monitor back to this computer's input, and verifies it.
    runtime::Task<> returnToMac(Display display);
    // Stops sending the monitor a picture, and switches it to `input`, or else to
    // its focus input, if there is one.
    runtime::Task<> disableOutput(Display display, std::optional<Input> input);
    // Turns the output on again and brings the monitor back, in the background.
    void enableOutput(const DisabledDisplay& entry);

    // For tests of the inventory's promises.
    Display known(DisplayID id) const;
    // Operations that have not ended.
    std::size_t runningTasks() const { return tasks_.running(); }

  private:
    using Matches = std::map<DisplayID, ddc::AVServiceLocator::Entry>;

    // The steps of refresh, in their order.
    void updateBuiltIn(const std::vector<DisplayID>& online);
    void pruneDisabled(const std::vector<DisplayID>& online);
    std::map<DisplayID, Display> reusableModels(const std::vector<DisplayID>& online) const;
    Matches matchServices(const std::vector<DisplayID>& externals,
                          const std::map<DisplayID, Display>& reusable);
    void notePulses(const std::vector<DisplayID>& online);
    Display modelFor(DisplayID id, std::optional<std::string> name,
                     const std::map<DisplayID, Display>& reusable, const Matches& matches);
    void logRefresh(const std::vector<DisplayID>& online, std::size_t newMatches) const;
    void reapplyDimmers();
    void noteObstacles();

    runtime::Task<> refreshWhenQuiet();
    runtime::Task<> load(Display display);
    void setDisabled(std::vector<DisabledDisplay> disabled);
    void removeDisabled(DisplayID id);
    bool isDisabled(DisplayID id) const;
    std::size_t displaysWithAPicture() const;

    runtime::Task<bool> waitForInput(Input input, Display display, std::function<bool()> isCurrent);
    runtime::Task<> learnMacInput(Display display);
    // After a pause, in which another output may have been turned off, the lid closed
    // or a cable moved. Tells the user when a picture would be the last one.
    bool mayStillTurnOff(const ExternalDisplay& display);
    runtime::Task<> turnOutputOn(DisabledDisplay entry);
    bool enable(DisplayID id, const std::string& name);
    void fail(const text::Text& text) { lastError_.set(platform_.localizer.shown(text)); }
    void log(platform::LogLevel level, const std::string& message) const;

    platform::Platform& platform_;
    runtime::Observable<std::shared_ptr<BuiltInDisplay>> builtIn_;
    runtime::Observable<std::vector<Display>> externals_;
    runtime::Observable<std::map<DisplayID, Display>> offline_;
    runtime::Observable<std::vector<DisabledDisplay>> disabled_;
    runtime::Observable<std::optional<std::string>> lastError_;
    runtime::Observable<std::vector<std::string>> obstacles_;
    std::set<std::string> dismissedObstacles_;
    // Every model made in this run, by display identifier: what refresh reuses.
    std::map<DisplayID, Display> known_;
    // When each monitor last dropped out of the online list by itself, as monitors
    // do for a moment while they switch inputs.
    std::map<DisplayID, runtime::WallTime> hotPlugPulses_;
    runtime::TaskHandle refreshTask_;
    runtime::TaskScope tasks_;
    // The platform's callbacks can't be taken back; they look whether this is gone.
    std::shared_ptr<DisplayManager*> self_;
};

}  // namespace vantrel::model
