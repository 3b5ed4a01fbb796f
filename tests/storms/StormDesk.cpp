#include "storms/StormDesk.h"

#include <array>
#include <span>
#include <string>
#include <utility>

#include "platform/simulated/DefaultRegistry.h"
#include "storms/StormPersonality.h"
#include "text/Hex.h"

namespace vantrel::storms {

using simulated::DisplayPlan;
using simulated::FeaturePlan;
using simulated::InputPlan;
using simulated::MonitorPlan;
using simulated::Random;

namespace {

constexpr platform::DisplayID builtInID = 1;
constexpr platform::DisplayID firstExternalID = 10;
constexpr std::array<std::uint16_t, 7> inputs{0x0F, 0x10, 0x11, 0x12, 0x1B, 0x01, 0x03};
// A model that misreports its inputs, known by name to the program.
constexpr std::uint32_t profiledVendor = 0x0472;
constexpr std::uint32_t profiledProduct = 0x0782;

struct Offered {
    std::uint8_t code;
    double probability;
    std::uint16_t maximum;
    // As a capabilities string lists them.
    const char* values;
};
constexpr Offered offered[] = {
    {0x04, 0.3, 1, ""},   {0x05, 0.3, 1, ""},   {0x08, 0.3, 1, ""},        {0x10, 0.92, 100, ""},
    {0x12, 0.9, 100, ""}, {0x62, 0.6, 64, ""},  {0x8D, 0.4, 2, "(01 02)"}, {0x14, 0.4, 11, "(04 05 08 0B)"},
    {0x16, 0.2, 255, ""}, {0x18, 0.2, 255, ""}, {0xD6, 0.3, 5, "(01 04)"}, {0xDC, 0.3, 5, "(00 03 05)"},
    {0x87, 0.2, 10, ""},  {0xC9, 0.1, 512, ""}, {0xE1, 0.2, 1, "(00 01)"},
};

FeaturePlan someFeature(const Offered& offer, Random& random) {
    FeaturePlan feature;
    feature.maximum = offer.maximum;
    feature.current = static_cast<std::uint16_t>(random.uniform(0, offer.maximum));
    if (random.chance(0.03)) feature.maximum = 0;
    if (random.chance(0.04)) feature.unsupported = true;
    if (offer.code == 0xE1 && random.chance(0.3)) feature.type = 1;
    return feature;
}

InputPlan someInputs(Random& random) {
    InputPlan plan;
    plan.available.clear();
    for (const std::uint16_t input : inputs) {
        if (random.chance(0.45)) plan.available.push_back(input);
    }
    if (plan.available.size() < 2) plan.available = {0x0F, 0x11};
    const auto some = [&] { return plan.available[random.uniform(0, plan.available.size() - 1)]; };
    plan.computer = some();
    plan.shown = random.chance(0.85) ? plan.computer : some();
    return plan;
}

std::string capabilitiesOf(const MonitorPlan& plan) {
    std::string codes;
    for (const Offered& offer : offered) {
        if (!plan.features.contains(offer.code)) continue;
        codes += " " + text::upperHex(offer.code) + offer.values;
    }
    if (plan.inputs) {
        std::string listed;
        for (const std::uint16_t input : plan.inputs->available) {
            if (!listed.empty()) listed += " ";
            listed += text::upperHex(input);
        }
        codes += " 60(" + listed + ")";
    }
    return "(prot(monitor)type(LCD)model(S)vcp(02" + codes + ")mccs_ver(2.1))";
}

MonitorPlan someMonitor(Random& random, Counts& counts) {
    MonitorPlan plan;
    for (const Offered& offer : offered) {
        if (random.chance(offer.probability)) plan.features.emplace(offer.code, someFeature(offer, random));
    }
    if (random.chance(0.93)) plan.inputs = someInputs(random);
    if (random.chance(0.8)) plan.capabilities = capabilitiesOf(plan);
    if (plan.capabilities && random.chance(0.04)) plan.capabilities = "no such thing";
    plan.personality = somePersonality(
        random, plan.inputs ? plan.inputs->available : std::span<const std::uint16_t>(), counts);
    counts.note(Seen::monitor);
    return plan;
}

DisplayPlan someDisplay(std::size_t place, Random& random, Counts& counts) {
    DisplayPlan display;
    display.id = firstExternalID + static_cast<platform::DisplayID>(place);
    display.name = "Monitor " + std::string(1, static_cast<char>('A' + place));
    // Makers may share; products never do by chance.
    display.vendor = 0x4500 + static_cast<std::uint32_t>(random.uniform(0, 3));
    display.product = 0x1100 + static_cast<std::uint32_t>(place);
    display.serial = 1000 + static_cast<std::uint32_t>(place);
    if (place == 0 && random.chance(0.1)) {
        display.vendor = profiledVendor;
        display.product = profiledProduct;
    }
    display.isConnected = random.chance(0.9);
    if (random.chance(0.1))
        display.transferTableCapacity = static_cast<std::uint32_t>(random.uniform(0, 2)) * 16;
    display.monitor = someMonitor(random, counts);
    return display;
}

// Takes away what tells displays apart, or their DDC/CI.
void muddle(StormDesk& desk, Random& random, Counts& counts) {
    auto& displays = desk.desk.displays;
    for (std::size_t index = 0; index < displays.size(); ++index) {
        DisplayPlan& display = displays[index];
        if (display.isBuiltIn) continue;
        const auto kind = random.uniform(0, 5);
        if (kind <= 1) display.serial = kind == 0 ? 0 : 0x01010101;
        if (kind == 2) {
            display.monitor.reset();
            counts.note(Seen::displayWithoutDDC);
        }
        if (kind == 3 && index > 0 && !displays[index - 1].isBuiltIn) {
            const DisplayPlan& model = displays[index - 1];
            display.vendor = model.vendor;
            display.product = model.product;
            display.serial = displays[index - 1].serial = 0;
            counts.note(Seen::twins);
        }
        if (kind <= 3) desk.isClean = false;
    }
}

void hideASymbol(StormDesk& desk, Random& random, Counts& counts) {
    static constexpr const char* symbols[] = {"IOAVServiceCreateWithService", "IOAVServiceWriteI2C",
                                              "IOAVServiceReadI2C",           "CGSConfigureDisplayEnabled",
                                              "DisplayServicesGetBrightness", "DisplayServicesSetBrightness"};
    const auto chosen = random.uniform(0, 5);
    desk.desk.missingSymbols = {symbols[chosen]};
    desk.hasDDC = chosen > 2;
    counts.note(Seen::missingSymbol);
}

}  // namespace

StormDesk StormDesk::any(Random random, Counts& counts) {
    StormDesk made;
    made.desk.title = "storm";
    made.desk.seed = random.next();
    if (random.chance(0.7)) {
        DisplayPlan panel;
        panel.id = builtInID;
        panel.isBuiltIn = true;
        panel.vendor = 0x0610;
        panel.product = 0xA050;
        panel.name = "Panel";
        if (random.chance(0.9)) panel.brightness = 0.5F;
        made.desk.displays.push_back(panel);
        counts.note(Seen::builtInPanel);
    }
    const std::size_t monitors = random.chance(0.75) ? random.uniform(1, 4) : random.uniform(5, 8);
    for (std::size_t place = 0; place < monitors; ++place) {
        made.desk.displays.push_back(someDisplay(place, random, counts));
    }
    if (random.chance(0.4)) muddle(made, random, counts);
    if (random.chance(0.05)) hideASymbol(made, random, counts);
    made.desk.registry = simulated::defaultRegistry(made.desk.displays);
    counts.note(Seen::desk);
    if (made.isClean) counts.note(Seen::cleanDesk);
    return made;
}

}  // namespace vantrel::storms
