#include "model/SoftwareDimmer.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vantrel::model {
namespace {

// A slider that was moved to its end and back rarely stops at the exact value.
constexpr double neutralBrightness = 0.999;
constexpr double neutralContrast = 0.5;
constexpr double contrastTolerance = 0.001;
// Brightness 0 leaves a tenth of the picture: the screen can't go black.
constexpr double leastFactor = 0.1;
constexpr double midGrey = 0.5;

std::vector<float> scaled(const std::vector<float>& base, double brightness, double contrast) {
    const double factor = brightness * (1 - leastFactor) + leastFactor;
    std::vector<float> table(base.size());
    std::transform(base.begin(), base.end(), table.begin(), [&](float sample) {
        const double contrasted = (contrast + 0.5) * (static_cast<double>(sample) - midGrey) + midGrey;
        return static_cast<float>(factor * std::clamp(contrasted, 0.0, 1.0));
    });
    return table;
}

}  // namespace

SoftwareDimmer::SoftwareDimmer(platform::DisplayServices& displays, platform::BaseTables& baseTables,
                               platform::Defaults& defaults, platform::DisplayID displayID, std::string key)
    : displays_(displays),
      baseTables_(baseTables),
      defaults_(defaults),
      displayID_(displayID),
      key_(std::move(key)) {
    const auto levels = persistence::Store::softwareLevels(defaults_, key_);
    brightness_.set(levels.brightness);
    contrast_.set(levels.contrast);
}

void SoftwareDimmer::setBrightness(double brightness) {
    brightness_.set(brightness);
    persistAndApply();
}

void SoftwareDimmer::setContrast(double contrast) {
    contrast_.set(contrast);
    persistAndApply();
}

void SoftwareDimmer::persistAndApply() {
    persistence::Store::setSoftwareLevels(defaults_, {brightness(), contrast()}, key_);
    apply();
}

void SoftwareDimmer::setActive(bool active) {
    if (isActive() == active) return;
    isActive_.set(active);
    apply();
}

bool SoftwareDimmer::isNeutral() const {
    return brightness() >= neutralBrightness && std::abs(contrast() - neutralContrast) < contrastTolerance;
}

void SoftwareDimmer::apply() {
    if (!isActive() && !baseTables_.holds(displayID_)) return;
    const platform::TransferTable* base = baseTables_.table(displayID_);
    if (base == nullptr) return;
    if (!isActive() || isNeutral()) {
        displays_.setTransferTable(displayID_, *base);
        return;
    }
    displays_.setTransferTable(displayID_, {scaled(base->red, brightness(), contrast()),
                                            scaled(base->green, brightness(), contrast()),
                                            scaled(base->blue, brightness(), contrast())});
}

}  // namespace vantrel::model
