#include "platform/linux/Backlight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vantrel::linux {
namespace {

const std::string backlights = "/class/backlight/";
// Which of several lights to use, the best first.
constexpr std::array<const char*, 3> types{"firmware", "platform", "raw"};
constexpr double least = 0.01;

}  // namespace

std::optional<std::string> Backlight::find() const {
    const std::vector<std::string> names = sysfs_.names(backlights);
    for (const char* type : types) {
        const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
            return sysfs_.text(backlights + name + "/type") == type &&
                   sysfs_.number(backlights + name + "/max_brightness").value_or(0) > 0;
        });
        if (found != names.end()) return *found;
    }
    return std::nullopt;
}

std::optional<float> Backlight::level() const {
    const auto name = find();
    if (!name) return std::nullopt;
    const auto value = sysfs_.number(backlights + *name + "/brightness");
    const auto maximum = sysfs_.number(backlights + *name + "/max_brightness");
    if (!value || !maximum || *maximum == 0) return std::nullopt;
    return std::min(static_cast<float>(static_cast<double>(*value) / static_cast<double>(*maximum)), 1.0F);
}

bool Backlight::setLevel(float level) {
    const auto name = find();
    if (!name || std::isnan(level)) return false;
    const auto maximum =
        static_cast<double>(sysfs_.number(backlights + *name + "/max_brightness").value_or(0));
    const double wanted = std::clamp(static_cast<double>(level), least, 1.0) * maximum;
    const auto value = static_cast<std::uint32_t>(std::max(1.0, std::round(wanted)));
    if (session_.setBacklight(*name, value)) return true;
    return sysfs_.write(backlights + *name + "/brightness", std::to_string(value)) == 0;
}

}  // namespace vantrel::linux
