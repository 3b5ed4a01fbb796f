// One simulated monitor on a bus in virtual time, and a host that writes and reads
// plain bytes. Frames in these tests are written out by hand.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string_view>
#include <utility>

#include "platform/simulated/SimulatedMonitor.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::simulated {

// "6E 80 BE" as bytes.
inline Bytes bytes(std::string_view hexadecimal) {
    Bytes result;
    for (std::size_t at = 0; at + 1 < hexadecimal.size(); at += 3) {
        const auto digit = [](char character) {
            return character <= '9' ? character - '0' : character - 'A' + 10;
        };
        result.push_back(static_cast<std::uint8_t>(digit(hexadecimal[at]) * 16 + digit(hexadecimal[at + 1])));
    }
    return result;
}

// Brightness 50 and contrast 30 of 100, colour preset 5 of 11, DisplayPort (0F)
// with the computer on it, and HDMI (11).
inline MonitorPlan ordinaryMonitor() {
    MonitorPlan plan;
    plan.features[0x10] = {0, 50, 100, false};
    plan.features[0x12] = {0, 30, 100, false};
    plan.features[0x14] = {0, 5, 11, false};
    plan.capabilities = "(prot(monitor)vcp(10 12 14 60))";
    plan.inputs = InputPlan{0x0F, 0x0F, {0x0F, 0x11}};
    return plan;
}

inline MonitorPlan monitorWith(Personality personality) {
    MonitorPlan plan = ordinaryMonitor();
    plan.personality = std::move(personality);
    return plan;
}

inline constexpr const char* get10 = "82 01 10 AC";
inline constexpr const char* get12 = "82 01 12 AE";
inline constexpr const char* get60 = "82 01 60 DC";
// A code that the ordinary monitor does not have.
inline constexpr const char* get99 = "82 01 99 25";
inline constexpr const char* set10To20 = "84 03 10 00 14 BC";
inline constexpr const char* set10To40 = "84 03 10 00 28 80";
inline constexpr const char* set60To0F = "84 03 60 00 0F D7";
inline constexpr const char* set60To11 = "84 03 60 00 11 C9";
inline constexpr const char* capabilitiesAt0 = "83 F3 00 00 4F";

inline constexpr const char* reply10Is50 = "6E 88 02 00 10 00 00 64 00 32 F2";
inline constexpr const char* reply10Is20 = "6E 88 02 00 10 00 00 64 00 14 D4";
inline constexpr const char* reply12Is30 = "6E 88 02 00 12 00 00 64 00 1E DC";
inline constexpr const char* reply60Is0F = "6E 88 02 00 60 00 00 11 00 0F CA";
inline constexpr const char* reply60Is11 = "6E 88 02 00 60 00 00 11 00 11 D4";
inline constexpr const char* nullReply = "6E 80 BE 6E 80 BE 6E 80 BE 6E 80";

class MonitorBench {
  public:
    explicit MonitorBench(const MonitorPlan& plan = ordinaryMonitor(), std::uint64_t seed = 1)
        : monitor(plan, Random(seed), time) {}
    explicit MonitorBench(Personality personality) : MonitorBench(monitorWith(std::move(personality))) {}

    std::int32_t write(std::string_view frame) { return monitor.write(0x37, 0x51, bytes(frame)); }

    // What a read delivers; nothing at all when it was not acknowledged.
    Bytes read(std::size_t count = 11) {
        Bytes result(count, 0xCC);
        return monitor.read(0x37, result) == 0 ? result : Bytes();
    }

    Bytes ask(std::string_view request, std::size_t count = 11) {
        if (write(request) != 0) return {};
        wait(std::chrono::milliseconds(50));
        return read(count);
    }

    void wait(Duration duration) { time.sleepFor(duration); }

    VirtualTime time;
    SimulatedMonitor monitor;
};

}  // namespace vantrel::simulated
