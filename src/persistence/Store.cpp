#include "persistence/Store.h"

#include <limits>
#include <utility>

#include "mccs/MonitorCapabilitiesJSON.h"
#include "persistence/StoredJSON.h"
#include "runtime/Fatal.h"

namespace vantrel::persistence::Store {
namespace {

using platform::Defaults;
using platform::DefaultsData;
using platform::DefaultsDictionary;

constexpr const char* disabledDisplaysKey = "disabledDisplays";

template <class T>
std::optional<T> stored(Defaults& defaults, const std::string& key) {
    auto value = defaults.value(key);
    if (!value) return std::nullopt;
    if (T* held = std::get_if<T>(&*value)) return std::move(*held);
    return std::nullopt;
}

template <class Decoded>
std::optional<Decoded> load(Defaults& defaults, const std::string& key,
                            std::optional<Decoded> (*decode)(std::string_view)) {
    const auto data = stored<DefaultsData>(defaults, key);
    return data ? decode(data->bytes) : std::nullopt;
}

void save(Defaults& defaults, const std::string& key, std::string json) {
    defaults.set(key, DefaultsData{std::move(json)});
}

std::optional<Input> input(Defaults& defaults, const std::string& key) {
    const std::int64_t number = stored<std::int64_t>(defaults, key).value_or(0);
    runtime::require(number >= 0 && number <= std::numeric_limits<Input>::max(),
                     "a stored input value of more than 16 bits");
    if (number == 0) return std::nullopt;
    return static_cast<Input>(number);
}

void setInput(Defaults& defaults, std::optional<Input> input, const std::string& key) {
    defaults.set(key, std::int64_t{input.value_or(0)});
}

double real(const DefaultsDictionary& dictionary, const std::string& key, double otherwise) {
    const auto found = dictionary.find(key);
    if (found == dictionary.end()) return otherwise;
    const double* number = std::get_if<double>(&found->second);
    return number != nullptr ? *number : otherwise;
}

}  // namespace

std::string displayKey(platform::DisplayServices& displays, platform::DisplayID display) {
    return std::to_string(displays.vendorNumber(display)) + "-" +
           std::to_string(displays.modelNumber(display)) + "-" +
           std::to_string(displays.serialNumber(display));
}

bool hasSerialNumber(const std::string& key) { return !key.ends_with("-0"); }

std::optional<mccs::MonitorCapabilities> capabilities(Defaults& defaults, const std::string& key) {
    return load(defaults, "capabilities." + key, mccs::MonitorCapabilitiesJSON::decode);
}

void setCapabilities(Defaults& defaults, const std::optional<mccs::MonitorCapabilities>& capabilities,
                     const std::string& key) {
    if (!capabilities) return defaults.remove("capabilities." + key);
    save(defaults, "capabilities." + key, mccs::MonitorCapabilitiesJSON::encode(*capabilities));
}

std::optional<std::vector<Input>> customInputs(Defaults& defaults, const std::string& key) {
    return load(defaults, "customInputs." + key, StoredJSON::decodeInputs);
}

void setCustomInputs(Defaults& defaults, const std::optional<std::vector<Input>>& inputs,
                     const std::string& key) {
    if (!inputs) return defaults.remove("customInputs." + key);
    save(defaults, "customInputs." + key, StoredJSON::encodeInputs(*inputs));
}

InputAliases inputAliases(Defaults& defaults, const std::string& key) {
    return load(defaults, "inputAliases." + key, StoredJSON::decodeAliases).value_or(InputAliases{});
}

void setInputAliases(Defaults& defaults, const InputAliases& aliases, const std::string& key) {
    save(defaults, "inputAliases." + key, StoredJSON::encodeAliases(aliases));
}

std::set<Input> hiddenInputs(Defaults& defaults, const std::string& key) {
    const auto inputs = load(defaults, "hiddenInputs." + key, StoredJSON::decodeInputs);
    return inputs ? std::set<Input>(inputs->begin(), inputs->end()) : std::set<Input>{};
}

void setHiddenInputs(Defaults& defaults, const std::set<Input>& inputs, const std::string& key) {
    save(defaults, "hiddenInputs." + key, StoredJSON::encodeInputs({inputs.begin(), inputs.end()}));
}

std::optional<Input> focusInput(Defaults& defaults, const std::string& key) {
    return input(defaults, "focusInput." + key);
}

void setFocusInput(Defaults& defaults, std::optional<Input> input, const std::string& key) {
    setInput(defaults, input, "focusInput." + key);
}

std::optional<Input> macInput(Defaults& defaults, const std::string& key) {
    return input(defaults, "macInput." + key);
}

void setMacInput(Defaults& defaults, std::optional<Input> input, const std::string& key) {
    setInput(defaults, input, "macInput." + key);
}

std::optional<std::string> controlMode(Defaults& defaults, const std::string& key) {
    return stored<std::string>(defaults, "controlMode." + key);
}

void setControlMode(Defaults& defaults, const std::string& mode, const std::string& key) {
    defaults.set("controlMode." + key, mode);
}

SoftwareLevels softwareLevels(Defaults& defaults, const std::string& key) {
    const auto dictionary =
        stored<DefaultsDictionary>(defaults, "software." + key).value_or(DefaultsDictionary{});
    const SoftwareLevels usual;
    return {real(dictionary, "brightness", usual.brightness), real(dictionary, "contrast", usual.contrast)};
}

void setSoftwareLevels(Defaults& defaults, const SoftwareLevels& levels, const std::string& key) {
    defaults.set("software." + key,
                 DefaultsDictionary{{"brightness", levels.brightness}, {"contrast", levels.contrast}});
}

std::vector<DisabledDisplay> disabledDisplays(Defaults& defaults) {
    return load(defaults, disabledDisplaysKey, StoredJSON::decodeDisplays)
        .value_or(std::vector<DisabledDisplay>{});
}

void setDisabledDisplays(Defaults& defaults, const std::vector<DisabledDisplay>& displays) {
    save(defaults, disabledDisplaysKey, StoredJSON::encodeDisplays(displays));
}

}  // namespace vantrel::persistence::Store
