#include "platform/linux/LinuxRegistry.h"

#include <algorithm>
#include <utility>

namespace vantrel::linux {
namespace {

using Display = Inventory::Display;

// The names and properties by which the program knows them.
constexpr const char* framebuffer = "IOMobileFramebufferShim";
constexpr const char* proxy = "DCPAVServiceProxy";

std::string fourDigits(std::uint32_t value) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (unsigned shift : {12U, 8U, 4U, 0U}) text += digits[value >> shift & 0xF];
    return text;
}

// Vendor, then the product with its bytes as they stand in the EDID.
std::string edidUUID(const EDID& edid) {
    const std::uint32_t swapped = (edid.product & 0xFF) << 8 | (edid.product >> 8 & 0xFF);
    return fourDigits(edid.vendor) + fourDigits(swapped) + "-0000-0000-0000-000000000000";
}

platform::PropertyDictionary identity(const EDID& edid) {
    platform::PropertyDictionary product{{"SerialNumber", static_cast<std::int64_t>(edid.serial)}};
    if (edid.name) product.emplace("ProductName", *edid.name);
    const platform::PropertyDictionary attributes{{"ProductAttributes", product}};
    return {{"EDID UUID", edidUUID(edid)}, {"DisplayAttributes", attributes}};
}

class Entry : public platform::RegistryEntry {
  public:
    Entry(std::string name, std::uint32_t object, platform::PropertyDictionary properties)
        : name_(std::move(name)), object_(object), properties_(std::move(properties)) {}

    std::string name() override { return name_; }
    std::optional<platform::PropertyValue> property(std::string_view key) override {
        const auto found = properties_.find(std::string(key));
        if (found == properties_.end()) return std::nullopt;
        return found->second;
    }
    std::uint32_t object() const override { return object_; }

  private:
    const std::string name_;
    const std::uint32_t object_;
    const platform::PropertyDictionary properties_;
};

class Iterator : public platform::RegistryIterator {
  public:
    explicit Iterator(Inventory::Displays displays) : displays_(std::move(displays)) {}

    std::unique_ptr<platform::RegistryEntry> next() override {
        if (place_ == displays_.size()) return nullptr;
        const Display& display = displays_[place_];
        if (std::exchange(isAtProxy_, !isAtProxy_)) {
            ++place_;
            return std::make_unique<Entry>(
                proxy, display.id,
                platform::PropertyDictionary{
                    {"Location", display.connector.isBuiltIn() ? "Internal" : "External"}});
        }
        return std::make_unique<Entry>(
            framebuffer, 0, display.edid ? identity(*display.edid) : platform::PropertyDictionary());
    }

  private:
    const Inventory::Displays displays_;
    std::size_t place_ = 0;
    bool isAtProxy_ = false;
};

}  // namespace

std::unique_ptr<platform::RegistryIterator> LinuxRegistry::iterateServicePlane() {
    Inventory::Displays displays = *inventory_.displays();
    const auto online = this->online();
    std::stable_partition(displays.begin(), displays.end(), [&online](const Display& display) {
        return std::find(online.begin(), online.end(), display.id) != online.end();
    });
    return std::make_unique<Iterator>(std::move(displays));
}

void LinuxRegistry::setOnline(std::vector<platform::DisplayID> online) {
    const std::lock_guard lock(mutex_);
    online_ = std::move(online);
}

std::vector<platform::DisplayID> LinuxRegistry::online() const {
    const std::lock_guard lock(mutex_);
    return online_;
}

}  // namespace vantrel::linux
