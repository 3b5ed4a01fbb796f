#include "platform/simulated/MonitorReader.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/PersonalityReader.h"
#include "platform/simulated/RecordingReader.h"
#include "platform/simulated/ValueReaders.h"
#include "text/Hex.h"

namespace vantrel::simulated::MonitorReader {
namespace {

using namespace ValueReaders;

constexpr std::uint8_t inputSelect = 0x60;
// The offset of a capabilities request has 16 bits.
constexpr std::size_t longestCapabilities = 0xFFFF;

void checkFeature(const JSONPlace& place, FeaturePlan& plan) {
    if (plan.unsupported) return;
    for (const char* key : {"current", "maximum"}) {
        if (!place.has(key)) place.member(key).report("is missing");
    }
}

const ObjectShape<FeaturePlan>& featureShape() {
    static const ObjectShape<FeaturePlan> shape{
        "Feature",
        {
            {"type", into(&FeaturePlan::type, code<std::uint8_t>)},
            {"current", into(&FeaturePlan::current, code<std::uint16_t>)},
            {"maximum", into(&FeaturePlan::maximum, code<std::uint16_t>)},
            {"unsupported", into(&FeaturePlan::unsupported, flag)},
        },
        checkFeature};
    return shape;
}

std::optional<std::map<std::uint8_t, FeaturePlan>> features(const JSONPlace& place) {
    std::map<std::uint8_t, FeaturePlan> result;
    for (const auto& [key, member] : place.members()) {
        const auto vcpCode = parseHexadecimal(key, 2);
        if (!vcpCode) member.report("must be named by a VCP code like 0x10");
        const auto feature = featureShape()(member);
        if (!vcpCode || !feature) continue;
        if (!result.emplace(static_cast<std::uint8_t>(*vcpCode), *feature).second) {
            member.report("names the same code as another key");
        }
    }
    return result;
}

std::optional<std::vector<std::uint16_t>> availableInputs(const JSONPlace& place) {
    std::vector<std::uint16_t> result;
    std::set<std::uint16_t> seen;
    for (const JSONPlace& element : place.elements()) {
        const auto input = code<std::uint16_t>(element);
        if (!input) continue;
        if (!seen.insert(*input).second) element.report("is there already");
        result.push_back(*input);
    }
    if (result.empty()) {
        place.report("must not be empty");
        return std::nullopt;
    }
    return result;
}

void checkInputs(const JSONPlace& place, InputPlan& plan) {
    if (!place.has("computer")) plan.computer = plan.available.front();
    if (!place.has("shown")) plan.shown = plan.computer;
    const auto check = [&](const char* key, std::uint16_t input) {
        if (std::find(plan.available.begin(), plan.available.end(), input) != plan.available.end()) return;
        place.member(key).report("0x" + text::upperHex(input) + " is not among the available inputs");
    };
    check("computer", plan.computer);
    check("shown", plan.shown);
}

const ObjectShape<InputPlan>& inputShape() {
    static const ObjectShape<InputPlan> shape{
        "Inputs",
        {
            {"available", into(&InputPlan::available, availableInputs)},
            {"computer", into(&InputPlan::computer, code<std::uint16_t>)},
            {"shown", into(&InputPlan::shown, code<std::uint16_t>)},
        },
        checkInputs};
    return shape;
}

std::optional<std::optional<std::string>> capabilities(const JSONPlace& place) {
    if (place.value().is_null()) return std::optional<std::string>();
    std::optional<std::string> result = place.bytes();
    if (!result) return std::nullopt;
    if (result->size() > longestCapabilities) {
        place.report("is longer than " + std::to_string(longestCapabilities) + " bytes");
    }
    return result;
}

void checkMonitor(const JSONPlace& place, MonitorPlan& plan) {
    if (plan.inputs && plan.features.contains(inputSelect)) {
        place.member("features").report("0x60 comes from inputs");
    }
}

const ObjectShape<MonitorPlan>& monitorShape() {
    static const ObjectShape<MonitorPlan> shape{
        "Monitor",
        {
            {"capabilities", into(&MonitorPlan::capabilities, capabilities)},
            {"features", into(&MonitorPlan::features, features)},
            {"inputs", into(&MonitorPlan::inputs, inputShape())},
            {"personality", into(&MonitorPlan::personality, PersonalityReader::read)},
            {"recording", into(&MonitorPlan::recording, RecordingReader::read)},
        },
        checkMonitor};
    return shape;
}

}  // namespace

std::optional<MonitorPlan> read(const JSONPlace& place) { return monitorShape()(place); }

std::vector<DeskFile::Words> vocabulary() {
    std::vector<DeskFile::Words> result{monitorShape().words(), featureShape().words(), inputShape().words()};
    for (DeskFile::Words& words : PersonalityReader::vocabulary()) result.push_back(std::move(words));
    for (DeskFile::Words& words : RecordingReader::vocabulary()) result.push_back(std::move(words));
    return result;
}

}  // namespace vantrel::simulated::MonitorReader
