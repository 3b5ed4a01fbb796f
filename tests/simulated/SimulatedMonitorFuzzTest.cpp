// Arbitrary bytes at monitors of arbitrary manners. A run uses a seed of its own
// for each round; VANTREL_SEED replays the one that a failure prints.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

constexpr std::uint64_t firstSeed = 20260105;
constexpr int rounds = 60;
constexpr int transfers = 300;

Occurrence someOccurrence(Random& random) {
    return {static_cast<double>(random.uniform(0, 10)) / 10, static_cast<unsigned>(random.uniform(0, 3)),
            static_cast<unsigned>(random.uniform(0, 3))};
}

Duration someTime(Random& random) { return random.duration(Duration(0), std::chrono::milliseconds(100)); }

Personality somePersonality(Random& random) {
    Personality personality;
    personality.replyLatency = someTime(random);
    personality.latencyJitter = someTime(random);
    personality.byteTime = random.duration(Duration(0), Duration(100));
    personality.nak.probability = 0.1;
    personality.ignoresWrongChecksums = random.chance(0.5);
    personality.unsupported = static_cast<UnsupportedReply>(random.uniform(0, 4));
    for (std::uint64_t fault = random.uniform(0, 3); fault > 0; --fault) {
        personality.replyFaults.push_back({static_cast<ReplyFault::Kind>(random.uniform(0, 11)),
                                           someOccurrence(random),
                                           {},
                                           static_cast<unsigned>(random.uniform(0, 20)),
                                           static_cast<std::uint8_t>(random.uniform(0, 255))});
        personality.fragmentFaults.push_back(
            {static_cast<FragmentFault::Kind>(random.uniform(0, 3)), someOccurrence(random)});
    }
    personality.writesNeeded = static_cast<unsigned>(random.uniform(0, 3));
    personality.writesNeedARead = random.chance(0.2);
    personality.writesLost = someOccurrence(random);
    personality.writesRevertAfter = someTime(random);
    personality.fragmentSize = random.uniform(0, 200);
    if (random.chance(0.3)) personality.capabilitiesCutAfter = random.uniform(0, 40);
    personality.inputSwitch = {someTime(random), random.chance(0.5),     someTime(random),
                               someTime(random), someOccurrence(random), someOccurrence(random)};
    personality.silentOnOtherInputs = random.chance(0.2);
    return personality;
}

// Half of them with a sound frame around a command that monitors know.
Bytes someWrite(Random& random) {
    Bytes written(random.chance(0.02) ? 70000 : random.uniform(0, 140));
    for (std::uint8_t& byte : written) byte = static_cast<std::uint8_t>(random.uniform(0, 255));
    if (random.chance(0.5) || written.size() < 8) return written;
    constexpr std::uint8_t commands[][2] = {{0x82, 0x01}, {0x84, 0x03}, {0x83, 0xF3}};
    constexpr std::uint8_t codes[] = {0x00, 0x04, 0x10, 0x14, 0x60, 0x99};
    const auto& command = commands[random.uniform(0, 2)];
    written[0] = command[0];
    written[1] = command[1];
    written[2] = codes[random.uniform(0, 5)];
    written[3] = 0;
    const std::size_t end = 1U + (command[0] & 0x7F);
    std::uint8_t checksum = 0x3F;
    for (std::size_t index = 0; index < end; ++index) {
        checksum = static_cast<std::uint8_t>(checksum ^ written[index]);
    }
    written[end] = checksum;
    return written;
}

void runRound(std::uint64_t seed) {
    Random random(seed);
    MonitorBench bench(monitorWith(somePersonality(random)), seed);
    for (int transfer = 0; transfer < transfers; ++transfer) {
        const auto chip =
            static_cast<std::uint32_t>(random.chance(0.9) ? 0x37 : random.uniform(0, 0xFFFFFFFF));
        if (random.chance(0.5)) {
            const auto source =
                static_cast<std::uint32_t>(random.chance(0.9) ? 0x51 : random.uniform(0, 0xFFFFFFFF));
            bench.monitor.write(chip, source, someWrite(random));
        } else {
            Bytes read(random.chance(0.02) ? 70000 : random.uniform(0, 140));
            bench.monitor.read(chip, read);
        }
        bench.wait(random.duration(Duration(0), std::chrono::milliseconds(60)));
        const auto brightness = bench.monitor.value(0x10);
        ASSERT_TRUE(brightness && *brightness <= 100);
        ASSERT_EQ(bench.monitor.value(0x99), std::nullopt);
        const auto input = bench.monitor.shownInput();
        ASSERT_TRUE(input == 0x0F || input == 0x11);
    }
    EXPECT_EQ(bench.monitor.counters().overlaps, 0);

    bench.wait(std::chrono::seconds(1));
    bench.monitor.becomeHealthy();
    EXPECT_EQ(bench.write(set10To20), 0);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
}

TEST(SimulatedMonitorFuzz, SurvivesArbitraryTransfersAndBecomesHealthy) {
    const char* replayed = std::getenv("VANTREL_SEED");
    const std::uint64_t seed = replayed != nullptr ? std::stoull(replayed) : firstSeed;
    for (int round = 0; round < (replayed != nullptr ? 1 : rounds); ++round) {
        const std::uint64_t ofRound = seed + static_cast<std::uint64_t>(round);
        SCOPED_TRACE("replay: VANTREL_SEED=" + std::to_string(ofRound) +
                     " simulated_tests --gtest_filter=SimulatedMonitorFuzz.*");
        runRound(ofRound);
        if (testing::Test::HasFailure()) return;
    }
}

}  // namespace
}  // namespace vantrel::simulated
