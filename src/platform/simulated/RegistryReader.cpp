#include "platform/simulated/RegistryReader.h"

#include <limits>
#include <nlohmann/json.hpp>

#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/ValueReaders.h"

namespace vantrel::simulated::RegistryReader {
namespace {

using namespace ValueReaders;

using platform::DisplayID;
using platform::PropertyDictionary;
using platform::PropertyValue;

// An entry as the file has it.
struct Item {
    std::optional<DisplayID> framebuffer;
    std::optional<DisplayID> proxy;
    std::optional<std::string> entry;
    std::optional<std::string> name;
    std::vector<std::string> without;
    PropertyDictionary properties;
};

PropertyDictionary dictionary(const nlohmann::json& object);

PropertyValue propertyValue(const nlohmann::json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_object()) return dictionary(value);
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
            return std::monostate();
        return static_cast<std::int64_t>(number);
    }
    if (value.is_number_integer()) return value.get<std::int64_t>();
    return std::monostate();
}

PropertyDictionary dictionary(const nlohmann::json& object) {
    PropertyDictionary result;
    for (const auto& [key, value] : object.items()) result.emplace(key, propertyValue(value));
    return result;
}

std::optional<PropertyDictionary> properties(const JSONPlace& place) {
    if (place.value().is_object()) return dictionary(place.value());
    place.reportType("an object");
    return std::nullopt;
}

void checkItem(const JSONPlace& place, Item& item) {
    const int kinds = place.has("framebuffer") + place.has("proxy") + place.has("entry");
    if (kinds != 1) place.report("must have one of framebuffer, proxy and entry");
    if (!item.entry) return;
    if (place.has("name")) place.member("name").report("is already given by entry");
    if (place.has("without")) place.member("without").report("has nothing to leave out");
}

const ObjectShape<Item>& itemShape() {
    static const ObjectShape<Item> shape{"Registry entry",
                                         {
                                             {"framebuffer", into(&Item::framebuffer, code<DisplayID>)},
                                             {"proxy", into(&Item::proxy, code<DisplayID>)},
                                             {"entry", into(&Item::entry, bytes)},
                                             {"name", into(&Item::name, bytes)},
                                             {"without", into(&Item::without, listOf(text))},
                                             {"properties", into(&Item::properties, properties)},
                                         },
                                         checkItem};
    return shape;
}

// Removes the property from wherever it stands; false when there is none.
bool removeProperty(PropertyDictionary& from, const std::string& key) {
    if (from.erase(key) != 0) return true;
    for (auto& [name, value] : from) {
        auto* inner = std::get_if<PropertyDictionary>(&value);
        if (inner != nullptr && removeProperty(*inner, key)) return true;
    }
    return false;
}

std::optional<RegistryEntryPlan> defaultEntry(const JSONPlace& place, const Item& item,
                                              const std::vector<DisplayPlan>& displays) {
    if (item.entry) return RegistryEntryPlan{RegistryEntryPlan::Kind::other, *item.entry, 0, {}};
    const std::optional<DisplayID>& wanted = item.framebuffer ? item.framebuffer : item.proxy;
    for (const DisplayPlan& display : displays) {
        if (display.id == wanted) return item.framebuffer ? framebufferEntry(display) : proxyEntry(display);
    }
    if (wanted) {
        place.member(item.framebuffer ? "framebuffer" : "proxy")
            .report("there is no display " + std::to_string(*wanted));
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::vector<RegistryEntryPlan>> read(const JSONPlace& place,
                                                   const std::vector<DisplayPlan>& displays) {
    std::vector<RegistryEntryPlan> result;
    for (const JSONPlace& element : place.elements()) {
        const std::optional<Item> item = itemShape()(element);
        if (!item) continue;
        std::optional<RegistryEntryPlan> entry = defaultEntry(element, *item, displays);
        if (!entry) continue;
        if (item->name) entry->name = *item->name;
        for (const std::string& key : item->without) {
            if (!removeProperty(entry->properties, key)) {
                element.member("without").report(JSONText::inQuotes(key) +
                                                 " is not a property of this entry");
            }
        }
        for (const auto& [key, value] : item->properties) entry->properties[key] = value;
        result.push_back(*std::move(entry));
    }
    return result;
}

std::vector<DeskFile::Words> vocabulary() { return {itemShape().words()}; }

}  // namespace vantrel::simulated::RegistryReader
