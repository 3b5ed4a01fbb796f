#include "platform/simulated/VCPTable.h"

#include <algorithm>

namespace vantrel::simulated {
namespace {

using runtime::MonotonicTime;

// VCP codes of MCCS 2.2a.
constexpr std::uint8_t restoreDefaults = 0x04;
constexpr std::uint8_t restoreLuminance = 0x05;
constexpr std::uint8_t restoreColor = 0x08;
constexpr std::uint8_t momentaryType = 1;

constexpr std::uint8_t luminanceCodes[] = {0x10, 0x12, 0x13, 0x6B};
constexpr std::uint8_t colorCodes[] = {0x0C, 0x14, 0x16, 0x17, 0x18, 0x1A, 0x59, 0x5A,
                                       0x5B, 0x5C, 0x5D, 0x5E, 0x6C, 0x6E, 0x70, 0x72,
                                       0x8A, 0x90, 0x9B, 0x9C, 0x9D, 0x9E, 0x9F, 0xA0};
// Codes of type "C" in the standard's tables, in ascending order.
constexpr std::uint8_t continuousCodes[] = {
    0x0C, 0x0E, 0x10, 0x12, 0x13, 0x16, 0x17, 0x18, 0x1A, 0x1C, 0x20, 0x22, 0x24, 0x26, 0x28, 0x29,
    0x2A, 0x2C, 0x2E, 0x30, 0x32, 0x34, 0x36, 0x38, 0x3A, 0x3C, 0x3E, 0x40, 0x41, 0x42, 0x43, 0x44,
    0x46, 0x48, 0x4A, 0x4B, 0x4C, 0x4E, 0x56, 0x58, 0x59, 0x5A, 0x5B, 0x5C, 0x5D, 0x5E, 0x62, 0x64,
    0x6B, 0x6C, 0x6D, 0x6E, 0x6F, 0x70, 0x71, 0x7C, 0x87, 0x88, 0x8A, 0x8C, 0x8E, 0x8F, 0x90, 0x91,
    0x92, 0x93, 0x95, 0x96, 0x97, 0x98, 0x9A, 0x9B, 0x9C, 0x9D, 0x9E, 0x9F, 0xA0};

bool isContinuous(std::uint8_t code) {
    return std::binary_search(std::begin(continuousCodes), std::end(continuousCodes), code);
}

}  // namespace

VCPTable::VCPTable(const std::map<std::uint8_t, FeaturePlan>& features, Duration revertAfter)
    : revertAfter_(revertAfter) {
    for (const auto& [code, plan] : features) {
        if (!plan.unsupported) features_.emplace(code, Feature{plan, plan.current, std::nullopt});
    }
}

std::uint16_t VCPTable::Feature::valueAt(MonotonicTime now) const {
    return revert && now >= revert->at ? revert->value : value;
}

std::optional<VCPReading> VCPTable::reading(std::uint8_t code, MonotonicTime now) const {
    const auto found = features_.find(code);
    if (found == features_.end()) return std::nullopt;
    const Feature& feature = found->second;
    return VCPReading{feature.plan.type, feature.plan.maximum, feature.valueAt(now)};
}

void VCPTable::write(std::uint8_t code, std::uint16_t value, MonotonicTime now) {
    const auto found = features_.find(code);
    if (found == features_.end()) return;
    Feature& feature = found->second;
    if (code == restoreDefaults || code == restoreLuminance || code == restoreColor) {
        if (value == 0) return;
        if (code == restoreLuminance) return restore(luminanceCodes);
        if (code == restoreColor) return restore(colorCodes);
        for (auto& [each, other] : features_) restore(other);
        return;
    }
    if (feature.plan.type == momentaryType) return;
    const bool isOutOfRange = feature.plan.maximum > 0 && value > feature.plan.maximum;
    if (isOutOfRange && isContinuous(code)) return;
    if (revertAfter_ > Duration::zero()) {
        // Written again before it went back: it still goes back to where it began.
        const bool isReverting = feature.revert && now < feature.revert->at;
        const std::uint16_t old = isReverting ? feature.revert->value : feature.valueAt(now);
        feature.revert = Revert{now + revertAfter_, old};
    }
    feature.value = value;
}

void VCPTable::adjust(std::uint8_t code, std::uint16_t value) {
    const auto found = features_.find(code);
    if (found == features_.end()) return;
    found->second.value = value;
    found->second.revert.reset();
}

void VCPTable::stopReverting(MonotonicTime now) {
    revertAfter_ = Duration::zero();
    for (auto& [code, feature] : features_) {
        feature.value = feature.valueAt(now);
        feature.revert.reset();
    }
}

void VCPTable::restore(Feature& feature) {
    feature.value = feature.plan.current;
    feature.revert.reset();
}

void VCPTable::restore(std::span<const std::uint8_t> codes) {
    for (const std::uint8_t code : codes) {
        const auto found = features_.find(code);
        if (found != features_.end()) restore(found->second);
    }
}

}  // namespace vantrel::simulated
