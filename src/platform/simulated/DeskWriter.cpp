#include "platform/simulated/DeskWriter.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/JSONLayout.h"
#include "platform/simulated/MonitorWriter.h"
#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::simulated::DeskWriter {
namespace {

using nlohmann::ordered_json;
using platform::PropertyDictionary;
using platform::PropertyValue;

// EDID numbers have 16 bits, so four digits.
std::string edidNumber(std::uint32_t number) {
    const std::string digits = text::upperHex(number);
    return "0x" + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

ordered_json object(const DisplayPlan& display) {
    const DisplayPlan usual;
    ordered_json result = {{"id", display.id}, {"name", display.name}};
    if (display.isBuiltIn) result["isBuiltIn"] = true;
    result["vendor"] = edidNumber(display.vendor);
    result["product"] = edidNumber(display.product);
    if (display.serial != usual.serial) result["serial"] = display.serial;
    if (display.edidUUID) result["edidUUID"] = *display.edidUUID;
    if (display.width != usual.width) result["width"] = display.width;
    if (display.height != usual.height) result["height"] = display.height;
    if (display.transferTableCapacity != usual.transferTableCapacity)
        result["transferTableCapacity"] = display.transferTableCapacity;
    if (display.brightness) result["brightness"] = *display.brightness;
    if (!display.isConnected) result["isConnected"] = false;
    if (!display.isOn) result["isOn"] = false;
    if (display.monitor) result["monitor"] = MonitorWriter::object(*display.monitor);
    return result;
}

ordered_json object(const PropertyDictionary& dictionary);

ordered_json valueOf(const PropertyValue& value) {
    if (const auto* string = std::get_if<std::string>(&value)) return *string;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* dictionary = std::get_if<PropertyDictionary>(&value)) return object(*dictionary);
    return nullptr;
}

ordered_json object(const PropertyDictionary& dictionary) {
    ordered_json result = ordered_json::object();
    for (const auto& [key, value] : dictionary) result[key] = valueOf(value);
    return result;
}

ordered_json entryOfADisplay(const RegistryEntryPlan& entry, const Desk& desk) {
    const bool isFramebuffer = entry.kind == RegistryEntryPlan::Kind::framebuffer;
    const auto isIts = [&entry](const DisplayPlan& display) { return display.id == entry.display; };
    const auto display = std::find_if(desk.displays.begin(), desk.displays.end(), isIts);
    runtime::require(display != desk.displays.end(),
                     "a registry entry of a display that the desk doesn't have");
    const RegistryEntryPlan usual = isFramebuffer ? framebufferEntry(*display) : proxyEntry(*display);

    ordered_json result = {{isFramebuffer ? "framebuffer" : "proxy", entry.display}};
    if (entry.name != usual.name) result["name"] = MonitorWriter::bytes(entry.name);
    for (const auto& [key, value] : usual.properties) {
        if (!entry.properties.contains(key)) result["without"].push_back(key);
    }
    for (const auto& [key, value] : entry.properties) {
        const auto found = usual.properties.find(key);
        if (found == usual.properties.end() || found->second != value)
            result["properties"][key] = valueOf(value);
    }
    return result;
}

ordered_json object(const RegistryEntryPlan& entry, const Desk& desk) {
    if (entry.kind != RegistryEntryPlan::Kind::other) return entryOfADisplay(entry, desk);
    ordered_json result = {{"entry", MonitorWriter::bytes(entry.name)}};
    if (!entry.properties.empty()) result["properties"] = object(entry.properties);
    return result;
}

}  // namespace

std::string text(const Desk& desk) {
    ordered_json result = {{"title", desk.title}};
    if (!desk.description.empty()) result["description"] = desk.description;
    if (desk.seed != Desk().seed) result["seed"] = desk.seed;
    result["displays"] = ordered_json::array();
    for (const DisplayPlan& display : desk.displays) result["displays"].push_back(object(display));
    result["registry"] = ordered_json::array();
    for (const RegistryEntryPlan& entry : desk.registry) result["registry"].push_back(object(entry, desk));
    if (!desk.missingSymbols.empty()) result["missingSymbols"] = desk.missingSymbols;
    if (!desk.obstacles.empty()) result["obstacles"] = desk.obstacles;
    return JSONLayout::text(result);
}

}  // namespace vantrel::simulated::DeskWriter
