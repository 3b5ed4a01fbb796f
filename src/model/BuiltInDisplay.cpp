#include "model/BuiltInDisplay.h"

#include <optional>

namespace vantrel::model {
namespace {

std::optional<float> readLevel(platform::PrivateFunctions& functions, platform::DisplayID id) {
    const platform::GetDisplayBrightness get = functions.getBrightness();
    float level = 0;
    if (get == nullptr || get(id, &level) != 0) return std::nullopt;
    return level;
}

}  // namespace

std::shared_ptr<BuiltInDisplay> BuiltInDisplay::make(platform::PrivateFunctions& functions,
                                                     platform::DisplayID id) {
    const auto level = readLevel(functions, id);
    if (!level) return nullptr;
    return std::shared_ptr<BuiltInDisplay>(new BuiltInDisplay(functions, id, *level));
}

void BuiltInDisplay::setBrightness(float level) {
    brightness_.set(level);
    if (const platform::SetDisplayBrightness set = functions_.setBrightness()) set(id_, level);
}

void BuiltInDisplay::refresh() {
    if (const auto level = readLevel(functions_, id_)) brightness_.set(*level);
}

}  // namespace vantrel::model
