// One external monitor: who it is, what it can do, what it was last seen doing,
// and what the user decided about it. Views observe it, DisplayManager makes it.
//
// Threads: main thread. DDC/CI runs on the worker's queue; tasks suspend for it.
// Lifetime: held by shared pointers; whoever starts one of its tasks keeps it
// alive until the task has ended.
// Errors: none to the caller. What the monitor does not answer stays as it was,
// and is in the log.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ddc/AVServiceLocator.h"
#include "ddc/DDCWorker.h"
#include "mccs/InputProfile.h"
#include "mccs/MonitorCapabilities.h"
#include "model/ControlMode.h"
#include "model/InputSettings.h"
#include "model/SoftwareDimmer.h"
#include "model/VCPFeature.h"
#include "platform/Platform.h"
#include "runtime/Observable.h"
#include "runtime/Task.h"
#include "runtime/TaskScope.h"

namespace vantrel::model {

class ExternalDisplay {
  public:
    using Input = std::uint16_t;
    using Features = std::map<std::uint8_t, std::shared_ptr<VCPFeature>>;
    using FeatureGroup = std::pair<mccs::VCPInfo::Group, std::vector<std::shared_ptr<VCPFeature>>>;

    enum class LoadState {
        idle,
        loading,
        ready,
        unavailable,  // no DDC answer
    };
    enum class Capabilities { cachedIfAny, fetched };

    // With a worker exactly when there is a service. Without a name it takes the
    // screen's.
    ExternalDisplay(platform::Platform& platform, platform::DisplayID id,
                    std::optional<ddc::AVServiceLocator::Entry> service, std::optional<std::string> name);
    ExternalDisplay(const ExternalDisplay&) = delete;
    ExternalDisplay& operator=(const ExternalDisplay&) = delete;

    platform::DisplayID id() const { return id_; }
    const std::string& key() const { return key_; }
    const std::string& name() const { return name_; }
    bool hasWorker() const { return worker_ != nullptr; }
    SoftwareDimmer& dimmer() { return dimmer_; }
    InputSettings& inputSettings() { return inputSettings_; }
    const InputSettings& inputSettings() const { return inputSettings_; }

    const Features& features() const { return features_.get(); }
    // Null when the monitor has none.
    std::shared_ptr<VCPFeature> feature(std::uint8_t code) const;
    // Every feature but brightness, contrast, input, volume and mute, by group;
    // groups and codes ascending, groups without features left out.
    std::vector<FeatureGroup> extraGroups() const;
    const std::optional<mccs::MonitorCapabilities>& capabilities() const { return capabilities_.get(); }
    LoadState loadState() const { return loadState_.get(); }

    ControlMode controlMode() const { return controlMode_.get(); }
    void setControlMode(ControlMode mode);
    // Whether brightness and contrast go to the dimmer instead of the monitor.
    bool usesSoftwareControls() const;

    // Whether the computer sends a picture.
    bool isOutputEnabled() const { return isOutputEnabled_.get(); }
    void setOutputEnabled(bool enabled);
    bool isReturningToMac() const { return isReturningToMac_.get(); }
    void setReturningToMac(bool returning) { isReturningToMac_.set(returning); }

    // Counts input requests: an operation that finds another number than the one
    // it began with has been superseded and stops.
    int inputRequest() const { return inputRequest_.get(); }
    int beginInputRequest();

    // Reads what the monitor can do and its values; features appear as they are
    // built. A display that is ready only refreshes its values.
    runtime::Task<> load(Capabilities from);
    // Reads brightness, contrast, input and volume again.
    runtime::Task<> refreshValues();
    // The input shown, as one of inputs(); nothing when it can't be told.
    runtime::Task<std::optional<Input>> readInput();

    // Shows the value at once and queues its write.
    void set(VCPFeature& feature, std::uint16_t value);
    void trigger(const VCPFeature& feature);

    std::vector<Input> inputs() const;
    std::vector<Input> visibleInputs() const;
    // What there is without the user's own list.
    std::vector<Input> detectedInputs() const;
    // The user's name for it, else the standard's.
    std::string inputName(Input input) const;
    // Both turn the list into the user's own.
    void addInput(Input input);
    void removeInput(Input input);
    // Nothing goes back to the detected list.
    void setCustomInputs(std::optional<std::vector<Input>> inputs);

  private:
    using ReadResult = ddc::DDCChannel::ReadResult;

    runtime::Task<> loadCapabilities(Capabilities from);
    runtime::Task<> loadFeature(std::uint8_t code);
    runtime::Task<ReadResult> read(std::uint8_t code, int attempts);
    runtime::Task<> refreshLater();

    std::vector<std::uint8_t> codesToLoad() const;
    std::span<const std::uint16_t> listedValues(std::uint8_t code) const;
    void addFeature(std::shared_ptr<VCPFeature> feature);
    void addInputFeature(const ReadResult& result);
    void finishLoading(LoadState state);
    void updateDimmer() { dimmer_.setActive(usesSoftwareControls()); }

    std::optional<Input> normalizedInput(std::uint16_t rawReading) const;
    // Normalises, logs and notes a raw reading.
    std::optional<Input> noteInput(std::uint16_t rawReading);
    void learnMacInputIfUnknown();
    void log(std::string_view category, platform::LogLevel level, const std::string& message) const;

    platform::Platform& platform_;
    platform::DisplayID id_;
    std::string key_;
    std::string name_;
    std::unique_ptr<ddc::DDCWorker> worker_;
    const mccs::InputProfile* inputProfile_;
    SoftwareDimmer dimmer_;
    InputSettings inputSettings_;
    runtime::Observable<Features> features_;
    runtime::Observable<std::optional<mccs::MonitorCapabilities>> capabilities_;
    runtime::Observable<LoadState> loadState_{LoadState::idle};
    runtime::Observable<ControlMode> controlMode_;
    runtime::Observable<bool> isOutputEnabled_{true};
    runtime::Observable<bool> isReturningToMac_{false};
    runtime::Observable<int> inputRequest_{0};
    runtime::TaskScope tasks_;
};

}  // namespace vantrel::model
