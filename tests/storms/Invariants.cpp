#include "storms/Invariants.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <set>

#include "model/VCPCodes.h"
#include "persistence/Store.h"
#include "platform/simulated/TransferTables.h"

namespace vantrel::storms {

using namespace std::chrono_literals;
using LoadState = model::ExternalDisplay::LoadState;
namespace Store = persistence::Store;

namespace {

// Four attempts of at most 38 s, the way there, and readings that wait for a
// queue that is loading features of a monitor that hardly answers.
constexpr auto longestSpin = 6min;

bool contains(const std::vector<platform::DisplayID>& ids, platform::DisplayID id) {
    return std::ranges::find(ids, id) != ids.end();
}

bool isOne(std::string_view text, std::string_view begin, std::string_view end) {
    return text.starts_with(begin) && text.ends_with(end);
}

bool isKnownError(const std::string& text) {
    return text == "The Mac's only active display can't be turned off." ||
           isOne(text, "macOS refused to turn the output off for ", ".") ||
           isOne(text, "Couldn't turn ", " back on. If it was disconnected, plug the cable back in.") ||
           text.ends_with(" did not return to the Mac's input. Try again or use the monitor's buttons.");
}

}  // namespace

Invariants::Invariants(simulated::World& world, SystemIdentifiers& identifiers, StormScheduler& scheduler,
                       Wire& wire, platform::Defaults& defaults, Verdict& verdict, Counts& counts)
    : world_(world),
      identifiers_(identifiers),
      scheduler_(scheduler),
      wire_(wire),
      defaults_(defaults),
      verdict_(verdict),
      counts_(counts) {}

void Invariants::begin(model::DisplayManager& manager) {
    manager_ = &manager;
    watchError();
    checkRefresh();
}

void Invariants::end() {
    errorObserver_.reset();
    models_.clear();
    madeByKey_.clear();
    loaders_.clear();
    loads_.clear();
    knownBefore_.clear();
    externalsBefore_.clear();
    manager_ = nullptr;
}

void Invariants::onLine(std::string_view text) {
    if (text.starts_with("Model for ")) noteModel(text);
    if (manager_ != nullptr) {
        if (text.starts_with("Refresh: ")) checkRefresh();
        lineOfReturn(text);
        lineOfLoad(text);
    }
    if (text.starts_with("macOS refused to turn output off")) counts_.note(Seen::refusedOff);
    if (text.starts_with("macOS refused to turn output back on")) counts_.note(Seen::refusedOn);
    lastLine_ = text;
}

// "Model for NAME (id ID, key KEY): DDC service found, input profile none"
void Invariants::noteModel(std::string_view line) {
    const std::size_t id = line.rfind(" (id ") + 5;
    const std::size_t key = line.find(", key ", id) + 6;
    const std::string ofKey(line.substr(key, line.find(')', key) - key));
    DisplayID display = 0;
    std::from_chars(line.data() + id, line.data() + line.size(), display);
    ++madeByKey_[ofKey];
    counts_.note(Seen::modelMade);
    if (line.find("DDC service found") == std::string_view::npos) return;
    ++modelsWithService_;
    constexpr std::size_t name = std::string_view("Model for ").size();
    ++loaders_[std::string(line.substr(name, id - 5 - name))];
    verdict_.unless(modelsWithService_ == scheduler_.started(), "a model has not exactly one queue");
    newestWorkerOf_[display] = scheduler_.newestWorker();
    wire_.worker(scheduler_.newestWorker()).key = ofKey;
}

void Invariants::checkRefresh() {
    counts_.note(Seen::refreshDone);
    const auto online = identifiers_.onlineDisplays();
    std::vector<DisplayID> externals;
    DisplayID builtIn = 0;
    for (const DisplayID id : online) {
        if (identifiers_.isBuiltIn(id)) {
            builtIn = id;
        } else {
            externals.push_back(id);
        }
    }
    const auto& shown = manager_->builtIn();
    verdict_.unless(!shown || shown->id() == builtIn, "the built-in display shown is not online");

    std::vector<DisplayID> shownExternals;
    for (const Display& display : manager_->externals()) {
        shownExternals.push_back(display->id());
        verdict_.unless(display->key() == Store::displayKey(identifiers_, display->id()),
                        "an external display's model is another monitor's");
        checkReuse(display);
    }
    verdict_.unless(shownExternals == externals,
                    "externals are not the online externals in the system's order");

    std::set<std::string> keys;
    for (const DisplayID id : online) keys.insert(Store::displayKey(identifiers_, id));
    std::set<DisplayID> off;
    for (const auto& entry : manager_->disabled()) {
        off.insert(entry.id);
        verdict_.unless(!contains(online, entry.id), "a display that is online counts as turned off");
        verdict_.unless(!(Store::hasSerialNumber(entry.key) && keys.contains(entry.key)),
                        "a display that is online under another identifier counts as turned off");
    }
    std::set<DisplayID> offline;
    for (const auto& [id, display] : manager_->offline()) {
        offline.insert(id);
        verdict_.unless(display && display->id() == id,
                        "an offline model is filed under another's identifier");
        checkReuse(display);
    }
    verdict_.unless(offline == off, "offline does not mirror disabled after a refresh");
    if (!off.empty()) counts_.note(Seen::outputOffAtRefresh);
    if (online.empty() && !off.empty()) counts_.note(Seen::everythingDark);
    // The refresh of a turn-off that the system accepted.
    const bool hasJustTurnedOff = lastLine_.starts_with("Turning Mac output off for ");
    verdict_.unless(!hasJustTurnedOff || !online.empty(), "the last picture was turned off");

    noteDropouts(online);
    notePruned(online);
    externalsBefore_ = manager_->externals();
    check();
    // The dimmers' turn comes when the refresh is over.
    dimmedAt_ = world_.reconfigurations();
}

void Invariants::checkReuse(const Display& display) {
    adopt(display);
    const DisplayID id = display->id();
    verdict_.unless(manager_->known(id) == display,
                    "a model shown is not the one known under its identifier");
    const KnownModel before =
        std::exchange(knownBefore_[id], {display, display->key(), display->hasWorker()});
    const Display old = before.model.lock();
    if (before.key.empty() || old == display) return;
    counts_.note(Seen::modelReplaced);
    const bool isOnline = contains(identifiers_.onlineDisplays(), id);
    const bool isAnother = isOnline && before.key != Store::displayKey(identifiers_, id);
    if (isAnother) counts_.note(Seen::modelForAnotherMonitor);
    if (old && old->loadState() == LoadState::loading) counts_.note(Seen::modelReplacedWhileLoading);
    if (!isAnother && (before.hadWorker || !display->hasWorker()))
        verdict_.broken("a model was replaced though it was of use");
}

void Invariants::adopt(const Display& display) {
    std::erase_if(models_,
                  [](const auto& watched) { return watched->model.expired() && watched->owner == 0; });
    const auto isIt = [&display](const auto& watched) { return watched->model.lock() == display; };
    if (std::ranges::any_of(models_, isIt)) return;
    auto& watched = *models_.emplace_back(std::make_unique<WatchedModel>());
    watched.model = display;
    watched.name = display->name();
    watched.key = display->key();
    // Of the models under one identifier the newest is the one that was just made.
    if (display->hasWorker()) watched.worker = newestWorkerOf_.at(display->id());
    verdict_.unless(!display->isReturningToMac(), "a new model returns to the computer already");
    watchSpinner(watched);
}

void Invariants::noteDropouts(const std::vector<DisplayID>& online) {
    for (const Display& display : externalsBefore_) {
        const auto isOff = [&](const auto& entry) { return entry.id == display->id(); };
        if (contains(online, display->id()) || std::ranges::any_of(manager_->disabled(), isOff)) continue;
        // Pulses are kept by identifier.
        for (const auto& watched : models_) {
            const Display model = watched->model.lock();
            if (!model || model->id() != display->id() || !watched->isSpinning) continue;
            if (scheduler_.now() <= watched->attemptBegan) continue;
            watched->hasPulsedSince = true;
            counts_.note(Seen::pulseWhileWaiting);
        }
    }
}

void Invariants::notePruned(const std::vector<DisplayID>& online) {
    for (const auto& entry : disabledBefore_) {
        const auto& now = manager_->disabled();
        if (std::ranges::find(now, entry) != now.end()) continue;
        const auto isReplaced = [&](const auto& other) { return other.id == entry.id; };
        if (std::ranges::any_of(now, isReplaced)) continue;
        const bool isBack = contains(online, entry.id);
        counts_.note(isBack ? Seen::prunedAsBack : Seen::prunedByKey);
        verdict_.unless(isBack || Store::hasSerialNumber(entry.key),
                        "a monitor like others of its model was taken for one that was turned off");
    }
    disabledBefore_ = manager_->disabled();
}

void Invariants::check() {
    if (manager_ == nullptr) return;
    counts_.note(Seen::check);
    disabledBefore_ = manager_->disabled();
    std::set<DisplayID> ids;
    for (const auto& entry : manager_->disabled()) {
        verdict_.unless(ids.insert(entry.id).second, "an identifier occurs twice in disabled");
        // Turning off refreshes at once, so only the other way takes a moment.
        verdict_.unless(manager_->offline().contains(entry.id), "a display turned off is not shown as such");
    }
    verdict_.unless(Store::disabledDisplays(defaults_) == manager_->disabled(),
                    "the stored list of displays turned off is not the one shown");
    const auto checkModel = [this](const Display& display, bool isOn) {
        if (display->isOutputEnabled() != isOn)
            verdict_.broken("isOutputEnabled of " + display->name() + " disagrees with the list it is in");
        if (manager_->known(display->id()) != display)
            verdict_.broken(display->name() + " is not the model known under its identifier");
        // It keeps what it was until a load has ended.
        const bool isSettled = display->loadState() != LoadState::loading;
        if (isSettled && display->dimmer().isActive() != display->usesSoftwareControls())
            verdict_.broken("the dimmer of " + display->name() + " is not in force when it should be, or is");
    };
    for (const Display& display : manager_->externals()) checkModel(display, true);
    for (const auto& [id, display] : manager_->offline()) checkModel(display, false);
    for (const auto& watched : models_) {
        const Display model = watched->model.lock();
        if (!model) {
            verdict_.unless(!watched->isSpinning, "a model went while its spinner was on");
            watched->isSpinning = false;
            continue;
        }
        if (model->loadState() == LoadState::loading)
            verdict_.unless(manager_->runningTasks() > 0, watched->name + " loads without a task");
        if (!watched->isSpinning) continue;
        verdict_.unless(model->inputRequest() == watched->owner,
                        "the spinner of " + watched->name + " is on for a return that was superseded");
        verdict_.unless(manager_->runningTasks() > 0, "the spinner of " + watched->name + " has no task");
        verdict_.unless(scheduler_.now() - watched->spinningSince < longestSpin,
                        "the spinner of " + watched->name + " has been on for too long");
    }
    verdict_.unless(!manager_->lastError() || isKnownError(*manager_->lastError()), "an unknown error text");
    checkDimmers();
}

// Only right after a refresh: every later reconfiguration puts the tables back.
void Invariants::checkDimmers() {
    if (std::exchange(dimmedAt_, std::nullopt) != world_.reconfigurations()) return;
    for (const Display& display : manager_->externals()) {
        const auto& dimmer = display->dimmer();
        const std::uint32_t capacity = identifiers_.transferTableCapacity(display->id());
        // The base table is the identifier's, whatever display has it now.
        if (!dimmer.isActive() || dimmer.isNeutral() || capacity < 2 || moved_.contains(display->id()))
            continue;
        counts_.note(Seen::dimmed);
        const auto table = identifiers_.transferTable(display->id(), capacity);
        verdict_.unless(!table || *table != simulated::TransferTables::linear(capacity),
                        display->name() + " is not dimmed after a refresh");
    }
}

void Invariants::checkStore() {
    if (manager_ == nullptr) return;
    for (const auto& watched : models_) {
        const Display model = watched->model.lock();
        const auto& custom = model ? model->inputSettings().customInputs() : std::nullopt;
        if (custom && model->feature(model::inputSource))
            verdict_.unless(model->inputs() == *custom, "the inputs offered are not the user's own list");
    }
    std::set<std::string> keys;
    for (const auto& watched : models_) keys.insert(watched->key);
    for (const std::string& key : keys) checkKey(key);
}

// Models of one key share what is stored under it: those of a monitor that came
// back under another identifier, and those of monitors that nobody can tell apart.
// Each read it when it was made. So what is stored is what the one that changed it
// last shows; the others may show what was there before.
void Invariants::checkKey(const std::string& key) {
    std::vector<Display> models;
    for (const auto& watched : models_) {
        if (const Display model = watched->model.lock(); model && watched->key == key)
            models.push_back(model);
    }
    const bool isShared = madeByKey_[key] > 1;
    if (isShared) counts_.note(Seen::settingsShared);
    const bool someAreGone = static_cast<int>(models.size()) < madeByKey_[key];
    const auto same = [&](const std::string& what, const auto& stored, auto shownBy) {
        const auto agrees = [&](const Display& model) { return shownBy(*model) == stored; };
        if (std::ranges::all_of(models, agrees)) return;
        if (isShared) counts_.note(Seen::staleSettings);
        const bool isKept = isShared && (someAreGone || std::ranges::any_of(models, agrees));
        verdict_.unless(isKept, "the stored " + what + " of " + key + " is not what its model shows");
    };
    using Model = model::ExternalDisplay;
    same("input names", Store::inputAliases(defaults_, key),
         [](Model& m) { return m.inputSettings().aliases(); });
    same("hidden inputs", Store::hiddenInputs(defaults_, key),
         [](Model& m) { return m.inputSettings().hidden(); });
    same("focus input", Store::focusInput(defaults_, key),
         [](Model& m) { return m.inputSettings().focusInput(); });
    same("computer's input", Store::macInput(defaults_, key),
         [](Model& m) { return m.inputSettings().macInput(); });
    same("input list", Store::customInputs(defaults_, key),
         [](Model& m) { return m.inputSettings().customInputs(); });
    same("control mode", model::controlModeFrom(Store::controlMode(defaults_, key)),
         [](Model& m) { return m.controlMode(); });
    same("software levels", Store::softwareLevels(defaults_, key), [](Model& m) {
        return Store::SoftwareLevels{m.dimmer().brightness(), m.dimmer().contrast()};
    });
}

void Invariants::userClearsError(const std::function<void()>& clear) {
    isUserClearing_ = true;
    clear();
    isUserClearing_ = false;
}

Wire::WorkerNumber Invariants::workerOf(const Display& display) const {
    const auto isIt = [&display](const auto& watched) { return watched->model.lock() == display; };
    const auto found = std::ranges::find_if(models_, isIt);
    return found == models_.end() ? Wire::noWorker : (*found)->worker;
}

bool Invariants::isAnySpinnerOn() const {
    return std::ranges::any_of(models_, [](const auto& watched) {
        const Display model = watched->model.lock();
        return model && model->isReturningToMac();
    });
}

bool Invariants::isAnythingLoading() const {
    return std::ranges::any_of(models_, [](const auto& watched) {
        const Display model = watched->model.lock();
        return model && model->loadState() == LoadState::loading;
    });
}

}  // namespace vantrel::storms
