// What holds at every moment of a storm, whatever the user and the world do.
//
// It listens to the log for the moments that matter, because the models' lines
// come from inside their operations, and looks at the models' public state.
//
// Threads: main thread.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/simulated/World.h"
#include "runtime/Observable.h"
#include "storms/Seen.h"
#include "storms/StormScheduler.h"
#include "storms/SystemIdentifiers.h"
#include "storms/Verdict.h"
#include "storms/WatchedModel.h"
#include "storms/Wire.h"

namespace vantrel::storms {

class Invariants {
  public:
    using DisplayID = platform::DisplayID;
    using Display = model::DisplayManager::Display;

    Invariants(simulated::World& world, SystemIdentifiers& identifiers, StormScheduler& scheduler, Wire& wire,
               platform::Defaults& defaults, Verdict& verdict, Counts& counts);

    // A program starts; until `end` the manager is watched.
    void begin(model::DisplayManager& manager);
    void end();

    // From inside the program.
    void onLine(std::string_view text);
    // After every event.
    void check();
    // After every step of a storm: takes longer.
    void checkStore();

    void userClearsError(const std::function<void()>& clear);
    // The queue of a model; noWorker when it has none.
    Wire::WorkerNumber workerOf(const Display& display) const;
    bool isAnySpinnerOn() const;
    bool isAnythingLoading() const;
    // An identifier that went from one display to another.
    void moved(DisplayID id) { moved_.insert(id); }

  private:
    struct KnownModel {
        std::weak_ptr<model::ExternalDisplay> model;
        std::string key;
        bool hadWorker = false;
    };

    void noteModel(std::string_view line);
    void checkRefresh();
    void checkReuse(const Display& display);
    void adopt(const Display& display);
    void noteDropouts(const std::vector<DisplayID>& online);
    void notePruned(const std::vector<DisplayID>& online);
    void checkDimmers();
    void checkKey(const std::string& key);

    void lineOfReturn(std::string_view text);
    void lineOfLoad(std::string_view text);
    void attemptBegins(WatchedModel& model, int attempt);
    void attemptFailed(WatchedModel& model, int attempt);
    void settled(WatchedModel& model);
    void spinnerChanged(WatchedModel& model);
    void errorChanged();
    void watchError();
    void watchSpinner(WatchedModel& model);
    // The only model of that name that ever returned to the computer: a monitor
    // that was plugged in under two identifiers has two models, which lines of the
    // log can't tell apart.
    WatchedModel* only(std::string_view name);
    bool lastLineIs(const std::string& line) const { return lastLine_ == line; }

    simulated::World& world_;
    SystemIdentifiers& identifiers_;
    StormScheduler& scheduler_;
    Wire& wire_;
    platform::Defaults& defaults_;
    Verdict& verdict_;
    Counts& counts_;
    model::DisplayManager* manager_ = nullptr;
    std::vector<std::unique_ptr<WatchedModel>> models_;
    std::unique_ptr<runtime::Observer> errorObserver_;
    std::string lastLine_;
    bool isUserClearing_ = false;
    std::uint64_t modelsWithService_ = 0;
    std::map<DisplayID, Wire::WorkerNumber> newestWorkerOf_;
    std::map<std::string, int> madeByKey_;
    // Models with a queue, and loads under way, by name.
    std::map<std::string, int, std::less<>> loaders_;
    std::map<std::string, int, std::less<>> loads_;
    // As the last refresh left them.
    std::map<DisplayID, KnownModel> knownBefore_;
    std::vector<Display> externalsBefore_;
    std::vector<persistence::DisabledDisplay> disabledBefore_;
    std::optional<std::uint64_t> dimmedAt_;
    std::set<DisplayID> moved_;
};

}  // namespace vantrel::storms
