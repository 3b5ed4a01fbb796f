#include "ddc/Probe.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "ddc/AVServiceLocator.h"
#include "ddc/DDCChannel.h"
#include "mccs/MCCS.h"
#include "mccs/MonitorProfiles.h"
#include "text/Hex.h"

namespace vantrel::ddc::Probe {
namespace {

constexpr std::uint8_t brightness = 0x10;
constexpr std::uint8_t contrast = 0x12;
constexpr std::uint8_t volume = 0x62;
constexpr std::array probedCodes{brightness, contrast, mccs::MCCS::inputSource, volume};
constexpr int readAttempts = 4;

std::string heading(const AVServiceLocator::Entry& entry) {
    return entry.productName.value_or("monitor") + " (EDID " + entry.edidUUID.value_or("none") + ", serial " +
           (entry.serial ? std::to_string(*entry.serial) : "none") + ")";
}

void printAnswers(DDCChannel& channel, std::ostream& output) {
    for (const std::uint8_t code : probedCodes) {
        const DDCChannel::ReadResult result = channel.read(code, readAttempts);
        output << "VCP 0x" << text::upperHex(code) << ": " << describe(result) << std::endl;
    }
    output << "Capabilities: " << channel.capabilities().value_or("<none>") << std::endl;
}

std::string describe(const mccs::InputProfile& profile) {
    std::string inputs;
    for (const std::uint16_t input : profile.inputs) {
        if (!inputs.empty()) inputs += ", ";
        inputs += "0x" + text::upperHex(input);
    }
    std::string readMap;
    for (const auto& [raw, input] : profile.readMap) {
        if (!readMap.empty()) readMap += ", ";
        readMap += std::to_string(raw) + " → 0x" + text::upperHex(input);
    }
    return inputs + " · read map " + readMap;
}

std::string inputName(std::uint16_t raw, const mccs::InputProfile& profile, platform::Localizer& localizer) {
    const auto input = mccs::MonitorProfiles::currentInput(raw, &profile, profile.inputs);
    if (!input) return "unknown";
    const auto& names = mccs::MCCS::inputNames();
    const auto name = names.find(*input);
    return name == names.end() ? "0x" + text::upperHex(*input) : localizer.shown(name->second);
}

void printProfile(const mccs::InputProfile& profile, DDCChannel& channel, platform::Localizer& localizer,
                  std::ostream& output) {
    output << "Input profile: " << describe(profile) << std::endl;
    const DDCChannel::ReadResult result = channel.read(mccs::MCCS::inputSource, readAttempts);
    if (result.kind != DDCChannel::ReadResult::Kind::value) return;
    output << "Current input: raw " << result.reading.current << " → "
           << inputName(result.reading.current, profile, localizer) << std::endl;
}

std::vector<platform::DisplayID> externalDisplays(platform::DisplayServices& displays) {
    std::vector<platform::DisplayID> online = displays.onlineDisplays();
    std::erase_if(online, [&displays](platform::DisplayID id) { return displays.isBuiltIn(id); });
    return online;
}

}  // namespace

void run(platform::Platform& platform, std::ostream& output) {
    const auto entries = AVServiceLocator::externalServices(platform.registry, platform.functions);
    output << "External AV services: " << entries.size() << std::endl;

    // By link, since matching hands out copies of the entries.
    std::map<const void*, DDCChannel> channels;
    for (const AVServiceLocator::Entry& entry : entries) {
        output << heading(entry) << std::endl;
        DDCChannel channel(Transport(platform), entry, entry.productName.value_or("monitor"));
        printAnswers(channel, output);
        channels.emplace(entry.service.get(), std::move(channel));
    }

    const std::vector<platform::DisplayID> displays = externalDisplays(platform.displays);
    const auto matches = AVServiceLocator::match(platform.displays, displays, entries);
    for (const platform::DisplayID display : displays) {
        const auto match = matches.find(display);
        const mccs::InputProfile* profile = mccs::MonitorProfiles::inputProfile(platform.displays, display);
        if (match == matches.end() || profile == nullptr) continue;
        printProfile(*profile, channels.at(match->second.service.get()), platform.localizer, output);
    }
    for (const text::Text& obstacle : platform.obstacles.find()) {
        output << platform.localizer.shown(obstacle) << std::endl;
    }
}

}  // namespace vantrel::ddc::Probe
