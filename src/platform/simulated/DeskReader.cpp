#include "platform/simulated/DeskReader.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>

#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/MonitorReader.h"
#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/RegistryReader.h"
#include "platform/simulated/ValueReaders.h"

namespace vantrel::simulated::DeskReader {
namespace {

using namespace ValueReaders;

using platform::DisplayID;

// Far more than any computer has.
constexpr std::size_t mostDisplays = 256;
constexpr unsigned mostPixels = 65535;
constexpr std::uint32_t largestTransferTable = 65536;

std::optional<DisplayID> displayID(const JSONPlace& place) {
    // 0 is the system's "no display".
    const auto value = place.wholeNumber(1, std::numeric_limits<DisplayID>::max(),
                                         JSONPlace::Notation::decimalOrHexadecimal);
    if (!value) return std::nullopt;
    return static_cast<DisplayID>(*value);
}

std::optional<float> brightness(const JSONPlace& place) {
    const auto value = place.number(0, 1);
    if (!value) return std::nullopt;
    return static_cast<float>(*value);
}

std::optional<std::optional<MonitorPlan>> monitor(const JSONPlace& place) {
    if (place.value().is_null()) return std::optional<MonitorPlan>();
    return MonitorReader::read(place);
}

const ObjectShape<DisplayPlan>& displayShape() {
    using D = DisplayPlan;
    constexpr auto required = Field<D>::Need::required;
    static const ObjectShape<D> shape{
        "Display",
        {
            {"id", into(&D::id, displayID), required},
            {"name", into(&D::name, text), required},
            {"isBuiltIn", into(&D::isBuiltIn, flag)},
            {"vendor", into(&D::vendor, code<std::uint32_t>), required},
            {"product", into(&D::product, code<std::uint32_t>), required},
            {"serial", into(&D::serial, code<std::uint32_t>)},
            {"edidUUID", into(&D::edidUUID, text)},
            {"width", into(&D::width, count(1U, mostPixels))},
            {"height", into(&D::height, count(1U, mostPixels))},
            {"transferTableCapacity",
             into(&D::transferTableCapacity, count(std::uint32_t{0}, largestTransferTable))},
            {"brightness", into(&D::brightness, brightness)},
            {"isConnected", into(&D::isConnected, flag)},
            {"isOn", into(&D::isOn, flag)},
            {"monitor", into(&D::monitor, monitor)},
        },
        {}};
    return shape;
}

// Ids are one to one, and a computer has one panel of its own.
std::optional<std::vector<DisplayPlan>> displays(const JSONPlace& place) {
    std::vector<DisplayPlan> result;
    std::map<DisplayID, std::size_t> indexOfID;
    std::optional<std::size_t> builtIn;
    const auto named = [](std::size_t index) { return JSONText::elementPlace("displays", index); };
    for (const JSONPlace& element : place.elements()) {
        const std::size_t index = result.size();
        std::optional<DisplayPlan> display = displayShape()(element);
        if (!display) return std::nullopt;
        const auto [known, isNew] = indexOfID.emplace(display->id, index);
        if (!isNew) element.member("id").report("is already the id of " + named(known->second));
        if (display->isBuiltIn && builtIn) {
            element.member("isBuiltIn").report(named(*builtIn) + " is already the built-in display");
        }
        if (display->isBuiltIn) builtIn = index;
        result.push_back(*std::move(display));
    }
    if (result.size() > mostDisplays) {
        place.report("has more than " + std::to_string(mostDisplays) + " displays");
        return std::nullopt;
    }
    return result;
}

// The private functions that a simulated system has.
constexpr std::string_view privateFunctions[] = {
    "IOAVServiceCreateWithService", "IOAVServiceWriteI2C",          "IOAVServiceReadI2C",
    "CGSConfigureDisplayEnabled",   "DisplayServicesGetBrightness", "DisplayServicesSetBrightness",
};

std::optional<std::string> privateFunction(const JSONPlace& place) {
    std::optional<std::string> name = place.text();
    if (name && std::find(std::begin(privateFunctions), std::end(privateFunctions), *name) ==
                    std::end(privateFunctions)) {
        place.report(JSONText::inQuotes(*name) + " is not the name of a private function");
    }
    return name;
}

const ObjectShape<Desk>& deskShape() {
    constexpr auto required = Field<Desk>::Need::required;
    static const ObjectShape<Desk> shape{
        "Desk",
        {
            {"title", into(&Desk::title, text), required},
            {"description", into(&Desk::description, text)},
            {"seed", into(&Desk::seed, code<std::uint64_t>)},
            {"displays", into(&Desk::displays, displays), required},
            // Names displays, so it comes after them.
            {"registry",
             [](const JSONPlace& place, Desk& desk) {
                 if (auto entries = RegistryReader::read(place, desk.displays))
                     desk.registry = *std::move(entries);
             }},
            {"missingSymbols", into(&Desk::missingSymbols, listOf(privateFunction))},
            {"obstacles", into(&Desk::obstacles, listOf(text))},
        },
        [](const JSONPlace& place, Desk& desk) {
            if (!place.has("registry")) desk.registry = defaultRegistry(desk.displays);
        }};
    return shape;
}

}  // namespace

Desk read(const JSONPlace& root) { return deskShape()(root).value_or(Desk{}); }

std::vector<DeskFile::Words> vocabulary() {
    std::vector<DeskFile::Words> result{deskShape().words(), displayShape().words()};
    for (DeskFile::Words& words : MonitorReader::vocabulary()) result.push_back(std::move(words));
    for (DeskFile::Words& words : RegistryReader::vocabulary()) result.push_back(std::move(words));
    return result;
}

}  // namespace vantrel::simulated::DeskReader
