// Displays that have nothing but the numbers of their EDID.
#pragma once

#include <map>

#include "support/NoDisplays.h"

namespace vantrel::test {

class NumberedDisplays : public NoDisplays {
  public:
    struct Numbers {
        std::uint32_t vendor = 0;
        std::uint32_t model = 0;
        std::uint32_t serial = 0;
    };

    std::uint32_t vendorNumber(platform::DisplayID display) override { return numbers[display].vendor; }
    std::uint32_t modelNumber(platform::DisplayID display) override { return numbers[display].model; }
    std::uint32_t serialNumber(platform::DisplayID display) override { return numbers[display].serial; }

    std::map<platform::DisplayID, Numbers> numbers;
};

}  // namespace vantrel::test
