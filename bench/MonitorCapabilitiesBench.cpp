// How long a capabilities string takes to parse: a usual one, and the growth
// with the length (it has to be linear) for texts that are hard in some way.

#include <benchmark/benchmark.h>
#include <string>
#include <string_view>

#include "mccs/MonitorCapabilities.h"

namespace {

using vantrel::mccs::MonitorCapabilities;

constexpr std::string_view head =
    "(prot(monitor)type(lcd)model(Aurora 27Q)cmds(01 02 03 07 0C E3 F3)vcp(02 04 05 08 10 12 "
    "14(05 08 0B) 16 18 1A 60(0F 11 12) 62 DC(00 01 02 F0)";
constexpr std::string_view tail = ")mccs_ver(2.1))";
constexpr std::string_view middle = " E0(00 01 02 03 1234) E1 E2(00 FF)";

constexpr std::int64_t kilobyte = 1 << 10;
constexpr std::int64_t megabyte = 1 << 20;

std::string repeated(std::string_view piece, std::size_t length) {
    std::string text;
    text.reserve(length + piece.size());
    while (text.size() < length) text += piece;
    return text;
}

std::string capabilitiesText(std::size_t length) {
    std::string text(head);
    return text.append(repeated(middle, length - head.size() - tail.size())).append(tail);
}

void parse(benchmark::State& state, const std::string& text) {
    for (auto _ : state) benchmark::DoNotOptimize(MonitorCapabilities::parse(text));
    const auto length = static_cast<std::int64_t>(text.size());
    state.SetComplexityN(length);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * length);
}

std::size_t length(const benchmark::State& state) { return static_cast<std::size_t>(state.range(0)); }

void aKilobyte(benchmark::State& state) { parse(state, capabilitiesText(kilobyte)); }
BENCHMARK(aKilobyte)->Unit(benchmark::kMicrosecond);

void usualText(benchmark::State& state) { parse(state, capabilitiesText(length(state))); }
void beginningsOfNames(benchmark::State& state) { parse(state, repeated("vcmodevcp", length(state))); }
void nestedLists(benchmark::State& state) { parse(state, "vcp(10" + repeated("(", length(state))); }
void oneLongToken(benchmark::State& state) { parse(state, "vcp(10(" + repeated("0", length(state))); }
void combiningMarks(benchmark::State& state) { parse(state, "vcp(10" + repeated("\u0308", length(state))); }
void flags(benchmark::State& state) { parse(state, "vcp(10" + repeated("\U0001F1FB", length(state))); }
BENCHMARK(usualText)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);
BENCHMARK(beginningsOfNames)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);
BENCHMARK(nestedLists)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);
BENCHMARK(oneLongToken)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);
BENCHMARK(combiningMarks)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);
BENCHMARK(flags)->RangeMultiplier(4)->Range(kilobyte, megabyte)->Complexity(benchmark::oN);

}  // namespace
