#include "platform/simulated/MonitorWriter.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <span>

#include "platform/simulated/Frame.h"
#include "runtime/Fatal.h"
#include "text/Hex.h"
#include "text/UTF8.h"

namespace vantrel::simulated::MonitorWriter {
namespace {

using nlohmann::ordered_json;
using platform::Transfer;

std::string code(std::uint32_t value) { return "0x" + text::upperHex(value); }

ordered_json milliseconds(Duration duration) {
    constexpr auto microseconds = 1000;
    if (duration.count() % microseconds == 0) return duration.count() / microseconds;
    return static_cast<double>(duration.count()) / microseconds;
}

ordered_json object(const FeaturePlan& feature) {
    ordered_json result = ordered_json::object();
    if (feature.type != 0) result["type"] = feature.type;
    if (!feature.unsupported || feature.current != 0) result["current"] = feature.current;
    if (!feature.unsupported || feature.maximum != 0) result["maximum"] = feature.maximum;
    if (feature.unsupported) result["unsupported"] = true;
    return result;
}

ordered_json object(const InputPlan& inputs) {
    ordered_json available = ordered_json::array();
    for (const std::uint16_t input : inputs.available) available.push_back(code(input));
    ordered_json result = {{"available", std::move(available)}, {"computer", code(inputs.computer)}};
    if (inputs.shown != inputs.computer) result["shown"] = code(inputs.shown);
    return result;
}

ordered_json object(const Transfer& transfer) {
    ordered_json result = {{"atMs", milliseconds(transfer.at)}};
    if (transfer.took != Duration::zero()) result["tookMs"] = milliseconds(transfer.took);
    if (transfer.chip != displayChip) result["chip"] = code(transfer.chip);
    const bool isWrite = transfer.direction == Transfer::Direction::write;
    if (transfer.address != (isWrite ? hostAddress : 0)) result["address"] = code(transfer.address);
    if (isWrite) {
        result["write"] = text::hexBytes(transfer.bytes);
    } else if (transfer.status == 0) {
        result["read"] = text::hexBytes(transfer.bytes);
    } else {
        result["read"] = transfer.length;
    }
    if (transfer.status != 0) result["status"] = code(static_cast<std::uint32_t>(transfer.status));
    return result;
}

}  // namespace

ordered_json object(const MonitorPlan& monitor) {
    ordered_json result = ordered_json::object();
    if (monitor.capabilities) result["capabilities"] = bytes(*monitor.capabilities);
    for (const auto& [vcpCode, feature] : monitor.features)
        result["features"][code(vcpCode)] = object(feature);
    if (monitor.inputs) result["inputs"] = object(*monitor.inputs);
    Personality known;
    known.dead = monitor.personality.dead;
    runtime::require(monitor.personality == known, "a personality is written that no recording has");
    if (known.dead) result["personality"] = {{"dead", true}};
    for (const Transfer& transfer : monitor.recording) result["recording"].push_back(object(transfer));
    return result;
}

ordered_json bytes(const std::string& bytes) {
    const auto isControl = [](char character) { return static_cast<unsigned char>(character) < 0x20; };
    const bool isText =
        text::repairedUTF8(bytes) == bytes && std::none_of(bytes.begin(), bytes.end(), isControl);
    if (isText) return bytes;
    const auto* first = reinterpret_cast<const std::uint8_t*>(bytes.data());
    return {{"hex", text::hexBytes(std::span(first, bytes.size()))}};
}

}  // namespace vantrel::simulated::MonitorWriter
