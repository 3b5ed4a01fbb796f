// Runs a test body once for each of many seeds, the same ones every time.
//
// A failure shows the seed and the command that begins with it.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace vantrel::test {

inline constexpr const char* seedVariable = "VANTREL_SEED";

inline std::uint64_t firstSeed() {
    const char* const chosen = std::getenv(seedVariable);
    return chosen ? std::strtoull(chosen, nullptr, 10) : 1;
}

// Stops at the first seed that fails.
template <typename Body>
void forRandomSeeds(std::uint64_t count, Body body) {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test.test_suite_name()) + "." + test.name();
    const std::uint64_t first = firstSeed();
    for (std::uint64_t seed = first; seed < first + count && !testing::Test::HasFailure(); ++seed) {
        const std::string number = std::to_string(seed);
        SCOPED_TRACE("seed " + number + ", replay with " + seedVariable + "=" + number +
                     " and --gtest_filter=" + name);
        body(seed);
    }
}

}  // namespace vantrel::test
