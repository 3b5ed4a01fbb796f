// How a picture is scaled or bent on its way to the output (RandR 1.3, "RRSetCrtcTransform").
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrel::randr {

struct Transform {
    static constexpr std::int32_t one = 1 << 16;

    // Rows of a matrix, in 65536ths.
    std::array<std::int32_t, 9> matrix{one, 0, 0, 0, one, 0, 0, 0, one};
    std::string filter;
    std::vector<std::int32_t> parameters;
    bool operator==(const Transform&) const = default;
};

}  // namespace vantrel::randr
