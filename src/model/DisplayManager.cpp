#include "model/DisplayManager.h"

#include <algorithm>
#include <chrono>

#include "persistence/Store.h"
#include "runtime/Fatal.h"
#include "runtime/Sleep.h"
#include "text/Hex.h"

namespace vantrel::model {

using namespace std::chrono_literals;
using platform::DisplayServices;
using platform::Log;
using platform::LogLevel;
namespace Store = persistence::Store;

namespace {

// One reconfiguration calls back many times, once for every display and phase.
constexpr auto quietTime = 600ms;

bool contains(const std::vector<platform::DisplayID>& ids, platform::DisplayID id) {
    return std::ranges::find(ids, id) != ids.end();
}

template <class Items, class TextOf>
std::string joined(const Items& items, TextOf textOf) {
    std::string text;
    for (const auto& item : items) {
        if (&item != &*items.begin()) text += ",";
        text += textOf(item);
    }
    return text;
}

}  // namespace

DisplayManager::DisplayManager(platform::Platform& platform)
    : platform_(platform),
      disabled_(Store::disabledDisplays(platform.defaults)),
      tasks_(platform.mainLoop),
      self_(std::make_shared<DisplayManager*>(this)) {
    // A table that an earlier run left dimmed must not be taken for the display's own.
    platform_.displays.restoreColorSyncSettings();
    refresh();
    const std::weak_ptr<DisplayManager*> self = self_;
    platform_.workspace.onWake([self] {
        if (const auto manager = self.lock()) (*manager)->scheduleRefresh();
    });
    platform_.displays.onReconfiguration([self](DisplayID display, std::uint32_t flags) {
        const auto manager = self.lock();
        if (!manager || (flags & DisplayServices::beginConfigurationFlag) != 0) return;
        (*manager)->log(LogLevel::info, "Reconfiguration: display " + std::to_string(display) + ", flags 0x" +
                                            text::lowerHex(flags));
        (*manager)->scheduleRefresh();
    });
}

void DisplayManager::scheduleRefresh() {
    refreshTask_.cancel();
    refreshTask_ = tasks_.start(refreshWhenQuiet());
}

runtime::Task<> DisplayManager::refreshWhenQuiet() {
    auto quiet = runtime::sleep(platform_.mainLoop, quietTime);
    if (co_await quiet == runtime::Slept::fully) refresh();
}

void DisplayManager::refresh() {
    const std::vector<DisplayID> online = platform_.displays.onlineDisplays();
    updateBuiltIn(online);
    pruneDisabled(online);

    std::vector<DisplayID> externalIDs = online;
    std::erase_if(externalIDs, [this](DisplayID id) { return platform_.displays.isBuiltIn(id); });
    const std::map<DisplayID, Display> reusable = reusableModels(online);
    const Matches matches = matchServices(externalIDs, reusable);
    notePulses(online);

    std::vector<Display> externals;
    externals.reserve(externalIDs.size());
    for (const DisplayID id : externalIDs) externals.push_back(modelFor(id, std::nullopt, reusable, matches));
    std::map<DisplayID, Display> offline;
    for (const DisabledDisplay& entry : disabled()) {
        const bool isNew =
            offline.emplace(entry.id, modelFor(entry.id, entry.name, reusable, matches)).second;
        runtime::require(isNew, "a display is listed twice among those turned off");
    }
    for (const Display& display : externals) known_[display->id()] = display;
    for (const auto& [id, display] : offline) known_[id] = display;
    externals_.set(externals);
    offline_.set(offline);
    for (const Display& display : externals) display->setOutputEnabled(true);
    for (const auto& [id, display] : offline) display->setOutputEnabled(false);

    logRefresh(online, matches.size());
    reapplyDimmers();
    noteObstacles();
}

void DisplayManager::updateBuiltIn(const std::vector<DisplayID>& online) {
    const auto id =
        std::ranges::find_if(online, [this](DisplayID d) { return platform_.displays.isBuiltIn(d); });
    if (id == online.end()) {
        builtIn_.set(nullptr);
    } else if (!builtIn() || builtIn()->id() != *id) {
        builtIn_.set(BuiltInDisplay::make(platform_.functions, *id));
    }
}

// A monitor that is back is no longer off, under its old identifier or, when its
// serial number tells it from others of its model, under a new one.
void DisplayManager::pruneDisabled(const std::vector<DisplayID>& online) {
    std::set<std::string> onlineKeys;
    for (const DisplayID id : online) onlineKeys.insert(Store::displayKey(platform_.displays, id));
    std::vector<DisabledDisplay> rest = disabled();
    std::erase_if(rest, [&](const DisabledDisplay& entry) {
        return contains(online, entry.id) ||
               (Store::hasSerialNumber(entry.key) && onlineKeys.contains(entry.key));
    });
    setDisabled(std::move(rest));
}

// Another monitor may answer to a known identifier now.
std::map<platform::DisplayID, DisplayManager::Display> DisplayManager::reusableModels(
    const std::vector<DisplayID>& online) const {
    std::map<DisplayID, Display> reusable = known_;
    std::erase_if(reusable, [&](const auto& item) {
        return contains(online, item.first) &&
               item.second->key() != Store::displayKey(platform_.displays, item.first);
    });
    return reusable;
}

DisplayManager::Matches DisplayManager::matchServices(const std::vector<DisplayID>& externals,
                                                      const std::map<DisplayID, Display>& reusable) {
    std::vector<DisplayID> unmatched = externals;
    for (const DisabledDisplay& entry : disabled()) unmatched.push_back(entry.id);
    std::erase_if(unmatched, [&reusable](DisplayID id) {
        const auto model = reusable.find(id);
        return model != reusable.end() && model->second->hasWorker();
    });
    if (unmatched.empty()) return {};
    return ddc::AVServiceLocator::match(
        platform_.displays, unmatched,
        ddc::AVServiceLocator::externalServices(platform_.registry, platform_.functions));
}

void DisplayManager::notePulses(const std::vector<DisplayID>& online) {
    for (const Display& display : externals()) {
        if (contains(online, display->id()) || isDisabled(display->id())) continue;
        hotPlugPulses_[display->id()] = platform_.scheduler.wallNow();
    }
}

// A model without DDC/CI gives way to a new one as soon as a service is found.
DisplayManager::Display DisplayManager::modelFor(DisplayID id, std::optional<std::string> name,
                                                 const std::map<DisplayID, Display>& reusable,
                                                 const Matches& matches) {
    const auto model = reusable.find(id);
    const auto match = matches.find(id);
    const bool isMatched = match != matches.end();
    if (model != reusable.end() && (model->second->hasWorker() || !isMatched)) return model->second;
    std::optional<ddc::AVServiceLocator::Entry> service;
    if (isMatched) service = match->second;
    auto made = std::make_shared<ExternalDisplay>(platform_, id, std::move(service), std::move(name));
    tasks_.start(load(made));
    return made;
}

void DisplayManager::logRefresh(const std::vector<DisplayID>& online, std::size_t newMatches) const {
    log(LogLevel::standard,
        "Refresh: online " + joined(online, [](DisplayID id) { return std::to_string(id); }) +
            ", externals " + joined(externals(), [](const Display& display) { return display->name(); }) +
            ", output off " + joined(offline(), [](const auto& item) { return item.second->name(); }) +
            ", new DDC matches " + std::to_string(newMatches));
}

// A reconfiguration puts every transfer table back.
void DisplayManager::reapplyDimmers() {
    for (const Display& display : externals()) {
        if (display->dimmer().isActive() && !display->dimmer().isNeutral()) display->dimmer().apply();
    }
}

void DisplayManager::forget(const DisabledDisplay& entry) { removeDisabled(entry.id); }

void DisplayManager::loadAll() {
    for (const Display& display : externals()) tasks_.start(load(display));
    for (const auto& [id, display] : offline()) tasks_.start(load(display));
}

// The parameter keeps the display alive for as long.
runtime::Task<> DisplayManager::load(Display display) {
    co_await display->load(ExternalDisplay::Capabilities::cachedIfAny);
    // A monitor that nobody has asked anything can't be said not to answer.
    noteObstacles();
}

void DisplayManager::noteObstacles() {
    std::vector<std::string> obstacles;
    for (const text::Text& text : platform_.obstacles.find()) {
        std::string shown = platform_.localizer.shown(text);
        if (!dismissedObstacles_.contains(shown)) obstacles.push_back(std::move(shown));
    }
    obstacles_.set(std::move(obstacles));
}

void DisplayManager::dismissObstacle(const std::string& obstacle) {
    dismissedObstacles_.insert(obstacle);
    noteObstacles();
}

DisplayManager::Display DisplayManager::known(DisplayID id) const {
    const auto found = known_.find(id);
    return found == known_.end() ? nullptr : found->second;
}

void DisplayManager::setDisabled(std::vector<DisabledDisplay> disabled) {
    Store::setDisabledDisplays(platform_.defaults, disabled);
    disabled_.set(std::move(disabled));
}

void DisplayManager::removeDisabled(DisplayID id) {
    std::vector<DisabledDisplay> rest = disabled();
    std::erase_if(rest, [id](const DisabledDisplay& entry) { return entry.id == id; });
    setDisabled(std::move(rest));
}

bool DisplayManager::isDisabled(DisplayID id) const {
    return std::ranges::any_of(disabled(), [id](const DisabledDisplay& entry) { return entry.id == id; });
}

std::size_t DisplayManager::displaysWithAPicture() const { return (builtIn() ? 1 : 0) + externals().size(); }

void DisplayManager::log(LogLevel level, const std::string& message) const {
    platform_.log.write(Log::display, level, message);
}

}  // namespace vantrel::model
