#include "platform/simulated/DefaultRegistry.h"

namespace vantrel::simulated {
namespace {

std::string fourDigits(std::uint32_t value) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (unsigned shift : {12U, 8U, 4U, 0U}) result += digits[value >> shift & 0xF];
    return result;
}

RegistryEntryPlan other(std::string name) { return {RegistryEntryPlan::Kind::other, std::move(name), 0, {}}; }

}  // namespace

std::string edidUUID(const DisplayPlan& display) {
    if (display.edidUUID) return *display.edidUUID;
    const std::uint32_t swapped = (display.product & 0xFF) << 8 | (display.product >> 8 & 0xFF);
    return fourDigits(display.vendor) + fourDigits(swapped) + "-0000-0000-0000-000000000000";
}

RegistryEntryPlan framebufferEntry(const DisplayPlan& display) {
    const platform::PropertyDictionary product{
        {"SerialNumber", static_cast<std::int64_t>(display.serial)},
        {"ProductName", display.name},
    };
    const platform::PropertyDictionary attributes{{"ProductAttributes", product}};
    return {RegistryEntryPlan::Kind::framebuffer,
            display.isBuiltIn ? "AppleCLCD2" : "IOMobileFramebufferShim",
            display.id,
            {{"EDID UUID", edidUUID(display)}, {"DisplayAttributes", attributes}}};
}

RegistryEntryPlan proxyEntry(const DisplayPlan& display) {
    return {RegistryEntryPlan::Kind::proxy,
            "DCPAVServiceProxy",
            display.id,
            {{"Location", display.isBuiltIn ? "Internal" : "External"}}};
}

std::vector<RegistryEntryPlan> defaultRegistry(const std::vector<DisplayPlan>& displays) {
    std::vector<RegistryEntryPlan> result{other("IOPlatformExpertDevice"), other("AppleARMIODevice")};
    for (const DisplayPlan& display : displays) {
        result.push_back(other(display.isBuiltIn ? "disp0" : "dispext0"));
        result.push_back(framebufferEntry(display));
        result.push_back(other("DCPAVControllerProxy"));
        result.push_back(proxyEntry(display));
        result.push_back(other("DCPAVAudioInterfaceProxy"));
    }
    result.push_back(other("IOHIDSystem"));
    return result;
}

}  // namespace vantrel::simulated
