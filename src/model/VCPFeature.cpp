#include "model/VCPFeature.h"

#include "text/Hex.h"

namespace vantrel::model {

text::Text VCPFeature::label(std::uint16_t value) const {
    const auto name = info.valueNames.find(value);
    return name != info.valueNames.end() ? name->second : text::Text::verbatim("0x" + text::upperHex(value));
}

}  // namespace vantrel::model
