#include "ddc/AVServiceLocator.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include "text/UTF8.h"

namespace vantrel::ddc::AVServiceLocator {
namespace {

using platform::PropertyDictionary;
using platform::PropertyValue;

struct Identity {
    std::optional<std::string> edidUUID;
    std::optional<std::uint32_t> serial;
    std::optional<std::string> productName;
};

template <class T>
std::optional<T> as(std::optional<PropertyValue> value) {
    if (!value) return std::nullopt;
    if (T* held = std::get_if<T>(&*value)) return std::move(*held);
    return std::nullopt;
}

template <class T>
std::optional<T> entryOf(const PropertyDictionary& dictionary, const std::string& key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? std::nullopt : as<T>(found->second);
}

std::string nameOf(platform::RegistryEntry& entry) {
    const std::string name = entry.name();
    return text::repairedUTF8(std::string_view(name).substr(0, name.find('\0')));
}

Identity identityOf(platform::RegistryEntry& framebuffer) {
    Identity identity{as<std::string>(framebuffer.property("EDID UUID")), {}, {}};
    const auto display = as<PropertyDictionary>(framebuffer.property("DisplayAttributes"));
    if (!display) return identity;
    const auto product = entryOf<PropertyDictionary>(*display, "ProductAttributes");
    if (!product) return identity;
    if (const auto serial = entryOf<std::int64_t>(*product, "SerialNumber")) {
        identity.serial = static_cast<std::uint32_t>(*serial);
    }
    identity.productName = entryOf<std::string>(*product, "ProductName");
    return identity;
}

std::optional<std::uint32_t> hexadecimal(std::string_view digits) {
    std::uint32_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto [parsed, error] = std::from_chars(digits.data(), end, number, 16);
    if (error != std::errc() || parsed != end) return std::nullopt;
    return number;
}

// An equal model alone outranks an equal vendor alone on purpose: some links
// report a vendor number of their own.
int score(const Entry& entry, platform::DisplayServices& displays, platform::DisplayID display) {
    int score = 0;
    if (entry.edidUUID) {
        const std::string_view uuid = *entry.edidUUID;
        const bool vendorMatches = hexadecimal(uuid.substr(0, 4)) == displays.vendorNumber(display);
        if (vendorMatches) score = 1;
        if (uuid.size() >= 8) {
            if (const auto swapped = hexadecimal(uuid.substr(4, 4))) {
                const std::uint32_t product = (*swapped & 0xFF) << 8 | *swapped >> 8;
                if (product == displays.modelNumber(display)) score = vendorMatches ? 3 : 2;
            }
        }
    }
    if (entry.serial && *entry.serial != 0 && *entry.serial == displays.serialNumber(display)) score += 4;
    return score;
}

}  // namespace

std::vector<Entry> externalServices(platform::Registry& registry, platform::PrivateFunctions& functions) {
    std::vector<Entry> services;
    const auto iterator = registry.iterateServicePlane();
    if (!iterator) return services;
    Identity pending;
    while (const auto entry = iterator->next()) {
        const std::string name = nameOf(*entry);
        if (name == "AppleCLCD2" || name == "IOMobileFramebufferShim") {
            pending = identityOf(*entry);
        } else if (name == "DCPAVServiceProxy") {
            if (as<std::string>(entry->property("Location")) != "External") continue;
            const platform::AVServiceCreate create = functions.avCreate();
            const void* service = create == nullptr ? nullptr : create(nullptr, entry->object());
            if (service == nullptr) continue;
            Identity identity = std::exchange(pending, {});
            services.push_back({platform::AVService(registry, service), std::move(identity.edidUUID),
                                identity.serial, std::move(identity.productName)});
        }
    }
    return services;
}

std::map<platform::DisplayID, Entry> match(platform::DisplayServices& displays,
                                           const std::vector<platform::DisplayID>& ids,
                                           std::vector<Entry> entries) {
    std::map<platform::DisplayID, Entry> matched;
    for (const platform::DisplayID id : ids) {
        auto best = entries.end();
        int bestScore = -1;
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            const int entryScore = score(*entry, displays, id);
            if (entryScore <= bestScore) continue;
            best = entry;
            bestScore = entryScore;
        }
        if (best == entries.end() || (bestScore == 0 && entries.size() > 1)) continue;
        matched.insert_or_assign(id, std::move(*best));
        entries.erase(best);
    }
    return matched;
}

}  // namespace vantrel::ddc::AVServiceLocator
