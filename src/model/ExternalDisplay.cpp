#include "model/ExternalDisplay.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "mccs/MCCS.h"
#include "mccs/MonitorProfiles.h"
#include "model/VCPCodes.h"
#include "runtime/Sleep.h"
#include "text/Hex.h"

namespace vantrel::model {

using namespace std::chrono_literals;
using platform::Log;
using platform::LogLevel;

namespace {

// A monitor answers nothing useful while it switches its input.
constexpr auto inputSettleTime = 8s;

std::string nameFor(platform::Platform& platform, platform::DisplayID id, std::optional<std::string> given) {
    if (given) return *given;
    if (auto screen = platform.displays.screenName(id)) return *screen;
    return platform.localizer.shown(text::Text::translated("External Monitor"));
}

std::unique_ptr<ddc::DDCWorker> workerFor(platform::Platform& platform, platform::DisplayID id,
                                          std::optional<ddc::AVServiceLocator::Entry> service,
                                          const std::string& name) {
    if (!service) return nullptr;
    ddc::DDCChannel channel(ddc::Transport(platform), std::move(*service), name);
    return std::make_unique<ddc::DDCWorker>(platform.scheduler, platform.mainLoop, std::move(channel),
                                            std::to_string(id));
}

}  // namespace

ExternalDisplay::ExternalDisplay(platform::Platform& platform, platform::DisplayID id,
                                 std::optional<ddc::AVServiceLocator::Entry> service,
                                 std::optional<std::string> name)
    : platform_(platform),
      id_(id),
      key_(persistence::Store::displayKey(platform.displays, id)),
      name_(nameFor(platform, id, std::move(name))),
      worker_(workerFor(platform, id, std::move(service), name_)),
      inputProfile_(mccs::MonitorProfiles::inputProfile(platform.displays, id)),
      dimmer_(platform.displays, platform.baseTables, platform.defaults, id, key_),
      inputSettings_(platform.defaults, key_),
      controlMode_(controlModeFrom(persistence::Store::controlMode(platform.defaults, key_))),
      tasks_(platform.mainLoop) {
    if (!worker_) loadState_.set(LoadState::unavailable);
    updateDimmer();
    platform_.log.write(Log::display, LogLevel::standard,
                        "Model for " + name_ + " (id " + std::to_string(id_) + ", key " + key_ +
                            "): DDC service " + (worker_ ? "found" : "missing") + ", input profile " +
                            (inputProfile_ != nullptr ? "yes" : "none"));
}

std::shared_ptr<VCPFeature> ExternalDisplay::feature(std::uint8_t code) const {
    const auto found = features().find(code);
    return found == features().end() ? nullptr : found->second;
}

std::vector<ExternalDisplay::FeatureGroup> ExternalDisplay::extraGroups() const {
    std::vector<FeatureGroup> groups;
    for (const auto group : mccs::VCPInfo::allGroups) {
        std::vector<std::shared_ptr<VCPFeature>> members;
        for (const auto& [code, feature] : features()) {
            const bool hasItsOwnRow = std::ranges::find(codesWithRows, code) != codesWithRows.end();
            if (!hasItsOwnRow && feature->info.group == group) members.push_back(feature);
        }
        if (!members.empty()) groups.emplace_back(group, std::move(members));
    }
    return groups;
}

void ExternalDisplay::setControlMode(ControlMode mode) {
    persistence::Store::setControlMode(platform_.defaults, rawValue(mode), key_);
    controlMode_.set(mode);
    updateDimmer();
}

bool ExternalDisplay::usesSoftwareControls() const {
    if (!isOutputEnabled()) return false;
    if (controlMode() == ControlMode::automatic) return loadState() == LoadState::unavailable;
    return controlMode() == ControlMode::software;
}

void ExternalDisplay::setOutputEnabled(bool enabled) {
    isOutputEnabled_.set(enabled);
    updateDimmer();
}

int ExternalDisplay::beginInputRequest() {
    inputRequest_.set(inputRequest() + 1);
    return inputRequest();
}

runtime::Task<ddc::DDCChannel::ReadResult> ExternalDisplay::read(std::uint8_t code, int attempts) {
    auto reading =
        worker_->run([code, attempts](ddc::DDCChannel& channel) { return channel.read(code, attempts); });
    co_return co_await reading;
}

runtime::Task<> ExternalDisplay::refreshValues() {
    constexpr int attempts = 2;
    if (!worker_ || isReturningToMac()) co_return;
    for (const std::uint8_t code : defaultCodes) {
        const std::shared_ptr<VCPFeature> refreshed = feature(code);
        if (!refreshed) continue;
        const ReadResult result = co_await read(code, attempts);
        if (result.kind != ReadResult::Kind::value) continue;
        if (code == inputSource) {
            noteInput(result.reading.current);
            learnMacInputIfUnknown();
        } else {
            refreshed->current.set(result.reading.current);
            refreshed->maximum.set(result.reading.maximum);
        }
    }
}

runtime::Task<std::optional<ExternalDisplay::Input>> ExternalDisplay::readInput() {
    if (!worker_) co_return std::nullopt;
    const ReadResult result = co_await read(inputSource, 1);
    if (result.kind != ReadResult::Kind::value) co_return std::nullopt;
    co_return noteInput(result.reading.current);
}

void ExternalDisplay::set(VCPFeature& feature, std::uint16_t value) {
    const std::string code = "0x" + text::upperHex(feature.code);
    // A slider sends dozens of values a second, of no interest in a log.
    if (feature.info.kind != mccs::VCPInfo::Kind::continuous) {
        log(Log::ui, LogLevel::standard,
            ": set " + feature.info.name.english() + " (" + code + ") to " + feature.label(value).english() +
                ", output " + (isOutputEnabled() ? "on" : "off"));
    }
    if (!worker_) log(Log::ui, LogLevel::error, ": no DDC service, write of " + code + " dropped");
    feature.current.set(value);
    if (worker_) worker_->write(feature.code, value);
    if (feature.code == inputSource && !isReturningToMac()) tasks_.start(refreshLater());
}

runtime::Task<> ExternalDisplay::refreshLater() {
    auto settling = runtime::sleep(platform_.mainLoop, inputSettleTime);
    if (co_await settling == runtime::Slept::fully) co_await refreshValues();
}

void ExternalDisplay::trigger(const VCPFeature& feature) {
    log(Log::ui, LogLevel::standard, ": trigger " + feature.info.name.english());
    if (worker_) worker_->write(feature.code, feature.info.actionValue);
}

void ExternalDisplay::log(std::string_view category, LogLevel level, const std::string& message) const {
    platform_.log.write(category, level, name_ + message);
}

}  // namespace vantrel::model
